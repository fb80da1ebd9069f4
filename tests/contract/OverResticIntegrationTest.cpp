#include "TmutilContract.h"

#include <QFile>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Our tmutil over a real restic.
class OverRestic final : public ContractSubject {
public:
    Answer call(const QStringList& arguments) override { return practice_.run(arguments); }
    QString addDisk(const QString& name) override { return practice_.addDisk(name); }
    void makeBackupLong() override { practice_.writeLargeFile(); }
    void makeBackupFail(const QString& id) override { QFile::remove(practice_.keyFile(id)); }

private:
    PracticeTmutil practice_{QStringLiteral(TMUTIL_EXECUTABLE)};
};

} // namespace

INSTANTIATE_TEST_SUITE_P(OverRestic, TmutilContract,
                         testing::Values(ContractCase{"Restic", [] { return std::make_unique<OverRestic>(); }}),
                         testing::PrintToStringParamName());

} // namespace quillon
