#include "benchmarks/BenchDialogs.h"
#include "benchmarks/Ratios.h"
#include "platform/window/Application.h"

int main(int argc, char** argv) {
    CWinApp application("Quovar", argc, argv);
    bench::InstallTemplates();
    return bench::RunAll(argc, argv);
}
