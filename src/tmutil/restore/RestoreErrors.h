#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace quillon {

/// What `restic restore` complains of, file by file.
class RestoreErrors {
public:
    /// `isThere` says of an absolute path of the backup whether something came back of it, or it is the one asked for:
    /// a name may hold anything, also what ends one in restic's words.
    explicit RestoreErrors(std::function<bool(const QString& path)> isThere);

    /// Takes all of standard error, in which names may hold line breaks and bytes that are no UTF-8.
    void read(const QByteArray& text);

    /// The decodePath()s of those that did not come back as they were, in order. What came back of them is not the
    /// file.
    QStringList damaged() const;

    /// Whether the owner, the rights or other attributes of something could not be given back. Its contents were.
    bool lackAttributes() const { return lackAttributes_; }

    /// The first words on the target, which could not take something in; empty where it took all.
    const QString& targetProblem() const { return targetProblem_; }

private:
    void readMessage(const QString& text);

    std::function<bool(const QString& path)> isThere_;
    QStringList damaged_;
    bool lackAttributes_ = false;
    QString targetProblem_;
};

} // namespace quillon
