// The peer of first_page: a Qt window with one label, from start to its first painting.

#include "process_memory.h"

#include <QApplication>
#include <QLabel>

namespace {

class Label : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    }
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    Label label(QStringLiteral("Une fenêtre et rien d’autre"));
    label.resize(800, 600);
    label.show();
    const int result = QApplication::exec();
    bench::printPeakMemory();
    return result;
}
