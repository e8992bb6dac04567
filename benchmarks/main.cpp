#include "benchmarks/BenchDialogs.h"
#include "benchmarks/Ratios.h"
#include "platform/Application.h"

int main(int argc, char** argv) {
    CWinApp application("Quovar", argc, argv);
    bench::installTemplates();
    return bench::runAll(argc, argv);
}
