// Prints the text that is selected on the display.

#include <QClipboard>
#include <QGuiApplication>

#include <cstdio>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    std::fputs(qUtf8Printable(QGuiApplication::clipboard()->text(QClipboard::Selection)), stdout);
}
