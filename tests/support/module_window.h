#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>

namespace test_support {

/// The small sibling program of this folder, on a display. It ends with the object.
class ModuleWindow : public QProcess {
public:
    /// Starts it with `arguments`, which module_window.cpp explains, in `directory`.
    ModuleWindow(const QByteArray& display, const QStringList& arguments,
                 const QString& directory = {}) {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"), QString::fromLatin1(display));
        setProcessEnvironment(environment);
        setWorkingDirectory(directory);
        start(QStringLiteral(MODULE_WINDOW), arguments);
    }

    ~ModuleWindow() override {
        kill();
        waitForFinished();
    }
};

} // namespace test_support
