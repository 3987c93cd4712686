// The peer of tools that draw nothing: a Qt program with a display connection and nothing to do.

#include <QGuiApplication>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
}
