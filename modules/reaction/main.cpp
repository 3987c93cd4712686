#include "common/simulation.h"
#include "reaction/main_window.h"

int main(int argc, char** argv) {
    return common::runSimulation(argc, argv, reaction::simulationKind());
}
