#include <QApplication>
#include <QLabel>

/// A sibling program in small: one window, until its display is gone.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QLabel window(QStringLiteral("Simulation"));
    window.resize(200, 100);
    window.show();
    return QApplication::exec();
}
