// The manual page names all that the help of the program does.

#include "coursetool/render_formats.h"
#include "support/files.h"

#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

QString helpOf(const QStringList& subcommand) {
    QProcess child;
    child.start(QStringLiteral(COURS_PROGRAM), subcommand + QStringList("--help"));
    EXPECT_TRUE(child.waitForFinished(60'000));
    return QString::fromUtf8(child.readAllStandardOutput());
}

/// What the pattern's group finds, line by line.
QStringList found(const QString& text, const char* pattern) {
    const QRegularExpression lines(QString::fromLatin1(pattern),
                                   QRegularExpression::MultilineOption);
    QStringList all;
    for (const QRegularExpressionMatch& match : lines.globalMatch(text))
        all += match.captured(1);
    return all;
}

TEST(ManualPage, namesEverySubcommandOptionAndFormat) {
    const QString page = QString::fromUtf8(test_support::readFile(MANUAL_PAGE)).replace("\\-", "-");
    const QStringList subcommands =
        found(helpOf({}).section(QStringLiteral("Sous-commandes:"), 1), "^  ([a-z]+) ");
    ASSERT_GE(subcommands.size(), 12);
    for (const QString& name : subcommands) {
        EXPECT_TRUE(page.contains("\n.B orvalente-cours " + name)) << name.toStdString();
        EXPECT_TRUE(found(page, "^\\.B[IR] \"?([a-z]+)").contains(name)) << name.toStdString();
        const QStringList options = found(helpOf({name}), "^  (?:-[a-z],)?(--[a-z-]+)");
        ASSERT_FALSE(options.isEmpty()) << name.toStdString();
        for (const QString& option : options)
            EXPECT_TRUE(page.contains(option)) << (name + ' ' + option).toStdString();
    }
    for (const coursetool::RenderFormatRow& row : coursetool::kRenderFormats)
        EXPECT_TRUE(page.contains("\n.BR " + QString::fromUtf8(row.name.data()) + '\n'))
            << row.name;
}

} // namespace
