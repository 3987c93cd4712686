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
    return source.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
}

/// The same content as HTML.
inline QString richPageHtml() {
    static const char16_t* const kParagraph =
        u"<p>Un rayon lumineux qui passe obliquement de l’air dans l’eau change <b><span "
        u"style='color:#b46400'>de direction</span></b> : c’est <i>la réfraction</i>.<br>Son "
        u"indice <i>n</i><sub>1</sub> dépend du milieu et de la couleur.</p>";
    QString html = QStringLiteral("<h1 style='font-size:19px'>La réfraction de la lumière</h1>");
    for (int i = 0; i < 6; ++i)
        html += QString::fromUtf16(kParagraph);
    return html;
}

/// Page `number` of a course of `count`: the rich page, a table of three rows, a picture of 320 by
/// 240 pixels ("photo.jpg") and links to four other pages.
inline QString coursePageSource(int number, int count) {
    static const QString kCommon = [] {
        QString source = richPageSource();
        // Or the line would leave the column.
        source.replace(QStringLiteral(" : c’est \r\n"), QStringLiteral(" :¶\r\nc’est \r\n"));
        for (const char16_t* row :
             {u"air¶\r\n##TAB200400 2\r\n1,000¶\r\n##TAB400590 3\r\n300 000¶\r\n##FINTAC01",
              u"eau¶\r\n##TAB200400 2\r\n1,333¶\r\n##TAB400590 3\r\n225 000¶\r\n##FINTAB",
              u"verre¶\r\n##TAB200400 2\r\n1,500¶\r\n##TAB400590 3\r\n200 000¶\r\n##FINTAC04"})
            source += QStringLiteral("##TAB010200 1\r\n") + QString::fromUtf16(row) +
                      QStringLiteral("\r\n");
        return source + QStringLiteral("##IHDEFphoto.jpg320240\r\n");
    }();
    QString source = kCommon;
    for (const int step : {1, 2, 10, 100})
        source += QStringLiteral("##LIERTpage %1#PAG%1\r\n  \r\n").arg((number + step) % count + 1);
    return source + QStringLiteral("¶\r\n");
}

/// The same content as HTML.
inline QString coursePageHtml(int number, int count) {
    QString html = QStringLiteral("<section id='p%1'>").arg(number + 1) + richPageHtml();
    html += QStringLiteral("<table><tr style='background:#dcffe6'><td>air<td>1,000<td>300 000"
                           "<tr class='b'><td>eau<td>1,333<td>225 000"
                           "<tr style='background:#dce6ff'><td>verre<td>1,500<td>200 000</table>"
                           "<img src='photo.jpg' width='320' height='240'><p>");
    for (const int step : {1, 2, 10, 100})
        html += QStringLiteral("<a href='#p%1'>page %1</a> ").arg((number + step) % count + 1);
    return html + QStringLiteral("</p></section>\n");
}

} // namespace bench
