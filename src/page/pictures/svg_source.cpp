#include "page/pictures/svg_source.h"

#include <QRegularExpression>
#include <QStringDecoder>

namespace page {

namespace {

/// Where a file names its encoding.
constexpr qsizetype kDeclaration = 256;

QStringDecoder decoderFor(const QByteArray& file) {
    if (const auto byMark = QStringConverter::encodingForData(file, u'<'))
        return QStringDecoder(*byMark);
    static const QRegularExpression naming(
        QStringLiteral("^\\s*<\\?xml[^>]*\\sencoding\\s*=\\s*[\"']([^\"']*)[\"']"));
    const QString start = QString::fromLatin1(file.first(qMin(file.size(), kDeclaration)));
    const auto named = naming.match(start);
    if (named.hasMatch())
        return QStringDecoder(named.captured(1).toLatin1().constData());
    return QStringDecoder(QStringDecoder::Utf8);
}

bool isBlank(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

/// Whether attributes can be read without harm. An attribute has an equals sign before a quotation
/// mark; no value holds the beginning of a tag.
bool hasFewAttributes(const QString& source) {
    int attributes = 0;
    bool isAfterEquals = false;
    for (const QChar c : source) {
        if (c == u'<')
            attributes = 0;
        else if (isAfterEquals && (c == u'"' || c == u'\'') && ++attributes > kMaxSvgAttributes)
            return false;
        isAfterEquals = c == u'=' || (isAfterEquals && isBlank(c));
    }
    return true;
}

} // namespace

std::optional<QString> svgSource(const QByteArray& file) {
    QStringDecoder decoder = decoderFor(file);
    if (!decoder.isValid())
        return std::nullopt;
    QString source = decoder(file);
    if (!hasFewAttributes(source))
        return std::nullopt;
    return source;
}

} // namespace page
