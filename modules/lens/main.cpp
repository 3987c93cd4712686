#include "common/simulation.h"
#include "lens/main_window.h"

int main(int argc, char** argv) {
    return common::runSimulation(argc, argv, lens::simulationKind());
}
