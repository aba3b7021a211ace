// Cost of rebuilding the settings tree: the layout from the record alone, and
// the pane's whole rebuild with its widgets, for the largest trigger layouts.
#include "controller/ctrlstate.h"
#include "controller/ctrltree.h"
#include "controller/frmCtrlList.h"
#include "text/language.h"
#include "text/messages.h"
#include "text/treewords.h"

#include <QApplication>
#include <benchmark/benchmark.h>

namespace {

void prepare(const char* method)
{
    ResetCtrlState();
    CtrlData.TrigMethod = ValueWord(QString::fromLatin1(method));
    CtrlData.AltTypeA = CtrlData.AltTypeB = ValueWord(QStringLiteral("SLOPE"));
    CtrlData.AcqType = ValueWord(QStringLiteral("AVERAGE"));
}

const char* const LargestLayouts[] = {"ALTERNATIVE", "PATTERN"};

void BM_BuildCtrlTree(benchmark::State& state)
{
    prepare(LargestLayouts[state.range(0)]);
    for (auto _ : state)
        benchmark::DoNotOptimize(BuildCtrlTree());
}
BENCHMARK(BM_BuildCtrlTree)->DenseRange(0, 1)->Unit(benchmark::kMicrosecond);

void BM_RebuildTree(benchmark::State& state)
{
    prepare(LargestLayouts[state.range(0)]);
    frmCtrlList list;
    list.mnuExpand_Click();
    for (auto _ : state) {
        list.SaveTreeExpansion();
        list.RebuildTree();
        list.RestoreTreeExpansion();
    }
}
BENCHMARK(BM_RebuildTree)->DenseRange(0, 1)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    LoadMessages();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
