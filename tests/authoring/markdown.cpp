#include "authoring/markdown.h"

#include "authoring/markdown_compiler.h"

#include <QRegularExpression>

#include <fstream>
#include <sstream>

const page::FontBook& fonts() {
    static const page::FontBook book;
    return book;
}

const authoring::Compiler& compiler() {
    static const authoring::MarkdownCompiler one(fonts());
    return one;
}

std::string compiled(const std::string& markdown) {
    return compiler().page(markdown, 1, {}).text.source;
}

std::string told(const std::vector<authoring::Fault>& faults) {
    std::string text;
    for (const authoring::Fault& fault : faults)
        text += std::to_string(fault.line) + ':' + std::to_string(fault.column) + ' ' +
                fault.sentence + '\n';
    return text;
}

std::string faultsOf(const std::string& markdown) {
    return told(compiler().page(markdown, 1, {}).faults);
}

std::string readFile(const std::filesystem::path& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

std::string bodyOf(const std::filesystem::path& file) {
    const std::string source = readFile(file);
    const std::size_t fence = source.starts_with("+++\n") ? source.find("\n+++\n", 3) : 0;
    return fence == 0 ? source : source.substr(fence + 5);
}

QString printed(const authoring::CompiledText& text) {
    static const QRegularExpression spoken(QStringLiteral(
        "^##(IND|EXP|POLY|VE1|VA1|LIERT|LIERX..|ADMEN|TITBAR|EXOLI|EXOVI|FRAC|IXA|IHDEF|VIDEO)"));
    QString shown;
    for (QString line : QString::fromStdString(text.source).split(u'\n')) {
        if (line.startsWith(QStringLiteral("##"))) {
            const auto match = spoken.match(line);
            static const QRegularExpression style(QStringLiteral(
                "^##(SI\\d\\d|ITA[01]|BOL[01]|C\\d{3}|FONT\\d\\d|PI[XY][-\\d]+|POX\\d+|K\\d+|SQD|"
                "SQF[\\d.]+|DECA[A-Z0-9]+|NUMERATEUR|DENOMINATEUR|FINFRAC)$"));
            // The author's own directives may have words that are drawn nowhere.
            shown += match.hasMatch()               ? line.mid(match.capturedLength())
                     : style.match(line).hasMatch() ? QString()
                                                    : line;
            continue;
        }
        shown += line.replace(QChar(0xB6), u' ').replace(QChar(0xA0), u' ');
    }
    return shown.normalized(QString::NormalizationForm_C);
}

QString lostLetters(const std::string& markdown, const QString& shown) {
    QString source = QString::fromStdString(markdown).normalized(QString::NormalizationForm_C);
    // Targets, descriptions, labels and definitions of links, listings' languages, comments,
    // commands of formulas and the arrow of what settles; the names of the margin and the band.
    for (const char* aside :
         {R"(\](\[[^\]]*\]|\((?:<[^>]*>|[^()]|\([^()]*\))*\)))", R"((?m)^[ >]*\[[^\]]*\]:.*$)",
          R"(```[^\n]*)", R"((?s)<!--.*?-->)", R"(\\[A-Za-z]+)", R"(&[a-zA-Z0-9#]+;)",
          R"(\sv(?=[\s}]))", "(?i)bandeau", R"((?i)en[\s>]+marge)"})
        source.replace(QRegularExpression(QString::fromUtf8(aside)), QStringLiteral(" "));
    QString lost;
    for (const QChar c : source)
        if (c.isLower() && !lost.contains(c) && source.count(c) > shown.count(c))
            lost += c;
    return lost;
}

QStringList wordsToPrint(const std::string& markdown) {
    QString source = QString::fromStdString(markdown).normalized(QString::NormalizationForm_C);
    for (const char* aside :
         {R"(\]\([^)]*\))", R"(```[^\n]*)", R"((?s)<!--.*?-->)", R"(\\[A-Za-z]+)", R"(&[a-zA-Z]+;)",
          R"([_^](\{[^}]*|\S))", "(?i)bandeau", R"((?i)en[\s>]+marge)"})
        source.replace(QRegularExpression(QString::fromUtf8(aside)), QStringLiteral(" "));
    QStringList words;
    static const QRegularExpression word(QStringLiteral("\\p{L}{4,}"));
    for (auto it = word.globalMatch(source); it.hasNext();)
        words.append(it.next().captured());
    return words;
}
