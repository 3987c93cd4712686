// The shell from its start until the first page has been painted: first_page COURSE

#include "app/shell_application.h"
#include "process_memory.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace {

/// Ends the program once the page area has been painted.
class UntilPainted : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint &&
            watched->objectName() == QStringLiteral("PictureTEXTE"))
            QMetaObject::invokeMethod(
                qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
        return false;
    }
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    QApplication application(argc, argv);
    app::CommandLine line;
    line.course = QString::fromLocal8Bit(argv[1]);
    app::ShellApplication shell(line, 1);
    UntilPainted untilPainted;
    if (!shell.start())
        return 1;
    application.installEventFilter(&untilPainted);
    const int result = QApplication::exec();
    bench::printPeakMemory();
    return result;
}
