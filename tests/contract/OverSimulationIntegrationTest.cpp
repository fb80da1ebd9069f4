#include "SimulatedTimeMachine.h"
#include "TmutilContract.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// What most other tests of the application have in place of a tmutil. Time passes with each call, and only then.
class OverSimulation final : public ContractSubject {
public:
    OverSimulation() { machine_.destinations.clear(); }

    Answer call(const QStringList& arguments) override
    {
        Answer answer;
        const auto child = machine_.launch(
            {.executable = u"tmutil"_s, .arguments = arguments, .environment = {u"command="_s + arguments.value(0)}},
            [&answer](const TaskResult& result) {
                answer = {result.status, result.output.value_or(QByteArray()), {}};
            });
        constexpr Seconds betweenCalls(3);
        runLoop_.advance(betweenCalls);
        return answer;
    }

    QString addDisk(const QString& name) override
    {
        machine_.destinations.append({u"id of "_s + name, name});
        return machine_.destinations.last().id;
    }

    void makeBackupLong() override { machine_.phases = {{u"FindingChanges"_s, 6}, {u"Copying"_s, 3600, true}}; }
    void makeBackupFail(const QString&) override { machine_.phases = {{u"FindingChanges"_s, 6}}; }

private:
    VirtualRunLoop runLoop_{Date()};
    SimulatedTimeMachine machine_{runLoop_};
};

} // namespace

INSTANTIATE_TEST_SUITE_P(OverSimulation, TmutilContract,
                         testing::Values(ContractCase{"Simulation", [] { return std::make_unique<OverSimulation>(); }}),
                         testing::PrintToStringParamName());

} // namespace quillon
