#include "support/x11_session.h"

#include "support/files.h"

namespace test_support {

X11Session::X11Session(Manager manager, QSize screen) {
    // The server picks a free number itself and writes it down when it is ready. It must not start
    // anew when its last client leaves, which may be at the moment when the next one comes.
    server_.setStandardErrorFile(QProcess::nullDevice());
    server_.start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                   QStringLiteral("0"),
                   QStringLiteral("%1x%2x24").arg(screen.width()).arg(screen.height()),
                   QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset")});
    QByteArray number;
    while (!number.endsWith('\n') && server_.waitForReadyRead())
        number += server_.readAllStandardOutput();
    if (!number.endsWith('\n')) {
        ADD_FAILURE() << "Xvfb does not start: " << qPrintable(server_.errorString());
        return;
    }
    display_ = ':' + number.trimmed();
    if (manager == Manager::Openbox)
        startManager();
}

X11Session::~X11Session() {
    for (QProcess* process : {&manager_, &server_}) {
        process->terminate();
        process->waitForFinished();
    }
}

void X11Session::startManager() {
    manager_.setProcessEnvironment(environment());
    manager_.setStandardErrorFile(QProcess::nullDevice());
    // It names itself on the root window before it is able to see every new window; what it runs
    // once it has started comes later.
    manager_.start(QStringLiteral("openbox"),
                   {QStringLiteral("--sm-disable"), QStringLiteral("--startup"),
                    QStringLiteral("xprop -root -f MANAGED 8s -set MANAGED yes")});
    EXPECT_TRUE(eventually([this] {
        return xprop({QStringLiteral("-root"), QStringLiteral("MANAGED")}).contains("yes");
    })) << "openbox does not start: "
        << qPrintable(manager_.errorString());
}

QByteArray X11Session::xprop(const QStringList& arguments) const {
    QProcess xprop;
    xprop.setProcessEnvironment(environment());
    xprop.start(QStringLiteral("xprop"), arguments);
    xprop.waitForFinished();
    return xprop.readAllStandardOutput();
}

QProcessEnvironment X11Session::environment() const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), QString::fromLatin1(display_));
    environment.insert(QStringLiteral("HOME"), home_.path());
    return environment;
}

} // namespace test_support
