// From the save of a page to its new pixels, in the shell on sources: preview_bench SOURCES RUNS.
// The page is pages/1.md, which the course opens with; prints the median in milliseconds.

#include "app/shell_application.h"
#include "authoring/markdown_compiler.h"
#include "page/faces/font_book.h"
#include "preview/previewed_course.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QTemporaryDir>
#include <QTimerEvent>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

/// Leaves the event loop once the page area has been painted and the window has this title.
class UntilPainted : public QObject {
public:
    UntilPainted() { startTimer(1); }

    void wait(const QString& title) {
        title_ = title;
        painted_ = nullptr;
        QApplication::exec();
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint &&
            watched->objectName() == QStringLiteral("PictureTEXTE"))
            painted_ = static_cast<QWidget*>(watched);
        return false;
    }

protected:
    void timerEvent(QTimerEvent*) override {
        if (painted_ && painted_->window()->windowTitle().endsWith(title_))
            QCoreApplication::exit(0);
    }

private:
    QString title_;
    QWidget* painted_ = nullptr; ///< since the wait began
};

QByteArray read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3)
        return 2;
    const QString sources = QString::fromLocal8Bit(argv[1]);
    QApplication application(argc, argv);
    const QTemporaryDir directory;
    const page::FontBook fonts;
    const authoring::MarkdownCompiler compiler(fonts);
    preview::PreviewedCourse course(sources.toStdU16String(), directory.path().toStdU16String(),
                                    compiler);
    if (course.update() == preview::PreviewedCourse::Renewed::Nothing)
        return 1;
    app::CommandLine line;
    line.course = directory.path();
    app::ShellApplication shell(line, 1);
    UntilPainted untilPainted;
    if (!shell.start())
        return 1;
    shell.follow(course);
    application.installEventFilter(&untilPainted);

    const QString page = sources + QStringLiteral("/pages/1.md");
    const QByteArray text = read(page);
    const auto at = text.indexOf("titre = ");
    const auto end = text.indexOf('\n', at);
    std::vector<double> times;
    for (int run = 0; run < QByteArray(argv[2]).toInt(); ++run) {
        const QString title = QStringLiteral("Essai %1").arg(run);
        const QByteArray changed =
            text.first(at) + "titre = \"" + title.toUtf8() + '"' + text.sliced(end);
        QElapsedTimer timer;
        timer.start();
        write(page, changed);
        untilPainted.wait(title);
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    write(page, text);
    std::sort(times.begin(), times.end());
    std::printf("%.0f\n", times[times.size() / 2]);
    return 0;
}
