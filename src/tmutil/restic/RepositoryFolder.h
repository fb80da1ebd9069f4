#pragma once

#include "Destination.h"

#include <QByteArrayList>
#include <QString>

#include <optional>

namespace quillon {

/// A folder on a backup disk, held open. Nothing on the way to it from the disk's own folder is a link, and whatever is
/// mounted over it or taken away later, its descriptor leads to this folder and to no other. Other users of the disk
/// may have prepared what lies around it.
class RepositoryFolder {
public:
    /// What is in the folder of a destination.
    enum class Contents {
        Absent,     ///< there is no such folder
        Empty,      ///< nothing yet
        Repository, ///< a restic repository
        Damaged,    ///< something, but not what makes a repository
        Foreign,    ///< a link, or another user's, or with a trap in it; it is not touched
    };
    static Contents contents(const Destination& destination);

    /// Nothing unless the folder is there, the user's own, and without a trap.
    static std::optional<RepositoryFolder> open(const Destination& destination);

    /// The path of something in the folder that restic would follow or wait for: a link, a pipe, a device. Empty where
    /// there is none.
    static QString trap(const Destination& destination);

    /// Makes the folder, and the one around it in which all users of the disk have theirs; does nothing where both are
    /// there. Throws Failure.
    static void make(const Destination& destination);

    /// A new, empty folder beside the destination's own. Those that killed processes have left there are removed, as
    /// far as nothing was stored in them. Throws Failure.
    static RepositoryFolder makeBeside(const Destination& destination);

    RepositoryFolder(RepositoryFolder&& other) noexcept;
    RepositoryFolder& operator=(RepositoryFolder&& other) noexcept;
    RepositoryFolder(const RepositoryFolder&) = delete;
    RepositoryFolder& operator=(const RepositoryFolder&) = delete;
    ~RepositoryFolder();

    const Destination& destination() const { return destination_; }
    int descriptor() const { return descriptor_; }
    bool isEmpty() const { return isEmptyFolder("."); }
    QByteArrayList namesIn(const char* folder) const;
    void removeLock(const QByteArray& name) const;
    bool isWritable() const;
    /// Throws Failure at once where restic would try again for a quarter of an hour.
    void requireWritable() const;
    bool hasConfig() const;
    /// Throws Failure, which says what to do, without it: restic then opens nothing.
    void requireConfig() const;

    /// Whether the path that led here still does: false once the disk is gone.
    bool isStillThere() const;

    /// Takes the place of the destination's folder if that is empty. Gives the reason why not, or nothing.
    std::optional<QString> moveIntoPlace();

    /// Removes this folder and all that is in it; for one that makeBeside() has made.
    void remove();

private:
    RepositoryFolder(const Destination& destination, QByteArray path, int descriptor);
    bool isEmptyFolder(const char* name) const;

    Destination destination_;
    QByteArray path_;
    int descriptor_;
};

} // namespace quillon
