#pragma once

#include "coursetool/workspace.h"

#include <QProcess>

struct Outcome {
    int code = -1;
    std::string out;
    std::string err;
};

/// The program itself, as a child process.
struct Program : testing::Test {
    Workspace work;

    Program() {
        work.write("src/pages/1.page", "+++\nNumeropage = 1\ntitre = \"Un\"\n+++\nA¶\n");
        work.write("src/files/a.txt", "a");
    }

    /// Runs in the workspace; without a display, whatever the tests run under.
    Outcome run(const QStringList& arguments, const QString& output = {}) {
        QProcess child;
        if (!output.isEmpty())
            child.setStandardOutputFile(output, QIODevice::Append);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QString::fromLatin1(name));
        child.setProcessEnvironment(environment);
        child.setWorkingDirectory(QString::fromStdString(work.path().string()));
        child.start(QStringLiteral(COURS_PROGRAM), arguments);
        EXPECT_TRUE(child.waitForFinished(60'000));
        EXPECT_EQ(child.exitStatus(), QProcess::NormalExit);
        return {child.exitCode(), child.readAllStandardOutput().toStdString(),
                child.readAllStandardError().toStdString()};
    }
    Outcome run(const char* arguments, const QString& output = {}) {
        return run(QString::fromUtf8(arguments).split(u' ', Qt::SkipEmptyParts), output);
    }
};
