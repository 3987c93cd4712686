#include <QApplication>
#include <QLabel>
#include <QTimer>

#include <csignal>

/// A sibling program in small: one window, until it is closed or its display is gone. Its title may
/// follow, and then "deaf" for one that ignores SIGTERM, or "dialog" for one that belongs to
/// another window.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(2) == QStringLiteral("deaf"))
        std::signal(SIGTERM, SIG_IGN);
    QLabel window(QStringLiteral("Simulation"));
    window.setWindowTitle(arguments.value(1, QStringLiteral("plain_window")));
    window.resize(200, 100);
    QLabel dialog(QStringLiteral("Options"), &window, Qt::Dialog);
    if (arguments.value(2) == QStringLiteral("dialogs")) {
        window.setWindowFlags(Qt::Dialog);
        QTimer::singleShot(0, &dialog, &QWidget::show);
    }
    window.show();
    return QApplication::exec();
}
