#include "common/simulation.h"
#include "projectile/main_window.h"

int main(int argc, char** argv) {
    return common::runSimulation(argc, argv, projectile::simulationKind());
}
