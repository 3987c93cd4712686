#pragma once

#include <QString>

namespace bench {

/// Source of a page of about 150 words in 60 runs: heading, text in several styles, indices.
inline QString richPageSource() {
    static const char16_t* const kParagraph = u"##SI12\n##INTER1.30\nUn rayon lumineux qui passe "
                                              u"obliquement de l’air dans l’eau change \n##BOL1\n"
                                              u"##C008\nde direction\n##BOL0\n##C000\n : c’est \n"
                                              u"##ITA1\nla réfraction\n##ITA0\n.¶\nSon indice \n"
                                              u"##ITA1\nn\n##ITA0\n##SI08\n##DECABA2\n1\n##SI12\n"
                                              u" dépend du milieu et de la couleur.¶\n";
    QString source = QStringLiteral("##SI14\n##BOL1\nLa réfraction de la lumière¶\n##BOL0\n");
    for (int i = 0; i < 6; ++i)
        source += QString::fromUtf16(kParagraph);
    return source.replace(QLatin1String("\n"), QLatin1String("\r\n"));
}

/// The same content as HTML.
inline QString richPageHtml() {
    static const char16_t* const kParagraph =
        u"<p>Un rayon lumineux qui passe obliquement de l’air dans l’eau change <b><span "
        u"style='color:#b46400'>de direction</span></b> : c’est <i>la réfraction</i>.<br>Son "
        u"indice <i>n</i><sub>1</sub> dépend du milieu et de la couleur.</p>";
    QString html = QStringLiteral("<body style='font-family:Liberation Sans;font-size:16px'>"
                                  "<h1 style='font-size:19px'>La réfraction de la lumière</h1>");
    for (int i = 0; i < 6; ++i)
        html += QString::fromUtf16(kParagraph);
    return html + QStringLiteral("</body>");
}

} // namespace bench
