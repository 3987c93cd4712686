#pragma once

#include <QProcess>
#include <QRegularExpression>
#include <QString>

#include <gtest/gtest.h>

namespace test_support {

/// A PDF file as programs of other makers read it.
class PrintedPdf {
public:
    explicit PrintedPdf(QString path) : path_(std::move(path)) {}

    static QString run(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0)
            << qPrintable(program) << process.readAllStandardError().constData();
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    /// The lines of each sheet.
    QList<QStringList> sheets() const {
        QList<QStringList> all;
        const QString text = run(QStringLiteral("pdftotext"),
                                 {QStringLiteral("-layout"), path_, QStringLiteral("-")});
        for (const QString& sheet : text.chopped(text.isEmpty() ? 0 : 1).split(u'\f'))
            all.append(sheet.simplified().isEmpty() ? QStringList() : linesOf(sheet));
        return all;
    }

    struct Word {
        QString text;
        double left, right, top, bottom; ///< twips
    };

    /// The words of all sheets.
    QList<Word> words() const {
        static const QRegularExpression kWord(
            QStringLiteral("<word xMin=\"([^\"]+)\" yMin=\"([^\"]+)\" xMax=\"([^\"]+)\" "
                           "yMax=\"([^\"]+)\">(.*)</"));
        const QString said =
            run(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), path_, QStringLiteral("-")});
        QList<Word> all;
        for (auto found = kWord.globalMatch(said); found.hasNext();) {
            const auto word = found.next();
            const auto twips = [&](int group) { return word.captured(group).toDouble() * 20; };
            all.append({word.captured(5), twips(1), twips(3), twips(2), twips(4)});
        }
        return all;
    }

    /// Rows of a tool's table, without its two header lines.
    QStringList listed(const QString& program, QStringList arguments = {}) const {
        return run(program, arguments << path_).split(u'\n', Qt::SkipEmptyParts).mid(2);
    }

private:
    static QStringList linesOf(const QString& sheet) {
        QStringList lines;
        for (const QString& line : sheet.split(u'\n', Qt::SkipEmptyParts))
            lines.append(line.simplified());
        return lines;
    }

    QString path_;
};

} // namespace test_support
