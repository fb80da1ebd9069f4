#pragma once

#include "PracticeTmutil.h"

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <string>

namespace quillon {

/// A tmutil under test, on ground of its own that goes with it.
class ContractSubject {
public:
    ContractSubject() = default;
    ContractSubject(const ContractSubject&) = delete;
    ContractSubject& operator=(const ContractSubject&) = delete;
    virtual ~ContractSubject() = default;

    virtual Answer call(const QStringList& arguments) = 0;

    /// Adds a backup disk of that name; gives its identifier.
    virtual QString addDisk(const QString& name) = 0;

    /// The next backup copies for seconds.
    virtual void makeBackupLong() = 0;

    /// The next backup on that disk fails as soon as it has begun.
    virtual void makeBackupFail(const QString& id) = 0;
};

/// A kind of tmutil; a subject is made anew for each test.
struct ContractCase {
    std::string name;
    std::function<std::unique_ptr<ContractSubject>()> make;
};

inline void PrintTo(const ContractCase& contractCase, std::ostream* stream)
{
    *stream << contractCase.name;
}

/// What the application relies on. Instantiate it with the cases there are.
class TmutilContract : public testing::TestWithParam<ContractCase> {
protected:
    /// Exit status of a call.
    int call(const QStringList& arguments) const;
    QVariantMap status() const;
    bool isRunning() const;
    /// Follows a run to its end; gives the phases seen, each once in a row.
    QStringList phasesUntilEnd() const;
    QVariantList destinations() const;

    std::unique_ptr<ContractSubject> subject_ = GetParam().make();
};

} // namespace quillon
