#include "markup/renderer.h"

#include "markup/directive_table.h"
#include "page/printable_text.h"
#include "text/rounding.h"

namespace markup {

namespace {

constexpr QStringView kLineEnd = u"\r\n";
constexpr QStringView kDirectiveMark = u"##";
constexpr QChar kParagraphEnd = u'\u00B6';

/// Width of the text column on paper, in pixels of the screen.
constexpr double kPaperColumnPx = 600;

} // namespace

Renderer::Renderer(DrawingState& state, PageWindow& window, PictureShelf& pictures,
                   page::Recording& recording, double screenTwipsPerPixel)
    : state_(state), window_(window), pictures_(pictures), recording_(recording),
      twipsPerPixel_(screenTwipsPerPixel) {}

bool Renderer::onCoursePage() const {
    return !state_.enImpression && !state_.fenetreSource->answerFields();
}

void Renderer::drawOnPaper() {
    state_.surfaceDessin = paper_;
}

void Renderer::drawNowhere() {
    discarded_.clear();
    nowhere_.emplace(paper_->id(), paper_->scaleWidth(), paper_->metrics(), discarded_);
    state_.surfaceDessin = &*nowhere_;
}

double Renderer::fullWidth() const {
    return state_.enImpression ? kPaperColumnPx * twipsPerPixel_
                               : state_.surfaceDessin->scaleWidth();
}

bool Renderer::check(bool done, const char16_t* reason) {
    if (!done)
        recording_.add(
            page::FailedOperation{lineNumber_, directive_.toString(), QString::fromUtf16(reason)});
    return done;
}

bool Renderer::store(std::int16_t& target, double value) {
    const auto rounded = text::toInt16(value);
    if (check(rounded.has_value(), u"la valeur ne tient pas sur 16 bits"))
        target = *rounded;
    return rounded.has_value();
}

void Renderer::movePenYBy(double twips) {
    check(surface().setPenY(surface().penY() + twips), u"la position sort des limites");
}

void Renderer::initecran() {
    state_.lienEnAttente.clear();

    page::Surface& target = surface();
    target.setFontPoints(10);
    target.setFace(QStringLiteral("Arial"));
    target.setBold(false);
    target.setUnderline(false);
    target.setItalic(false);
    target.setInk(kBlack);
    target.setPenX(0);
    target.setPenY(0);

    state_.reliefDecalage = 0;
    state_.alignement = 0;
    state_.dansTableau = false;
    for (int edge = TopEdge; edge <= RightEdge; ++edge)
        state_.couleursBord.store(edge, *qbColor(kLightBlueIndex));
    state_.interligne = 1;
    state_.decalageUnique = 0;
    state_.margeGauche = 0;
    state_.largeurCadre = 0;
    store(state_.margeDroite, fullWidth());

    target.setLineWidth(1);
    if (state_.enImpression)
        window_.preparePrinter();
    window_.setBusy(true);
    state_.fenetreSource->code().setSelectionStart(0);

    // An empty line printed at the pen ends with the pen at the left; the drawing then goes on
    // below what stands already.
    target.setPenX(0);
    target.setPenY(state_.hauteurPage);
}

void Renderer::affichepage() {
    if (!state_.surfaceDessin || !state_.fenetreSource)
        return;
    lineNumber_ = 0;
    directive_ = {};
    paper_ = state_.surfaceDessin;
    initecran();

    page::RichTextHolder& code = state_.fenetreSource->code();
    for (;;) {
        const qsizetype debut = code.selectionStart();
        const qsizetype end = code.find(kLineEnd, debut, code.text().size());
        if (end < 0)
            break; // what follows the last line end is never drawn
        ++lineNumber_;
        code.setSelectionLength(end - debut);
        drawLine(code.selectedText());
        code.setSelectionStart(end + kLineEnd.size());
    }
    directive_ = {};
    finish();
    // A page that ended nowhere leaves the paper to whoever writes the footer.
    if (state_.enImpression)
        drawOnPaper();
    discarded_.clear();
}

void Renderer::drawLine(QStringView ligne) {
    if (ligne.startsWith(kDirectiveMark)) {
        tradcode(ligne);
        return;
    }
    const bool finParagraphe = ligne.endsWith(kParagraphEnd);
    directive_ = {};
    QString buffer;
    const QStringView texte = finParagraphe ? ligne.chopped(1) : ligne;
    printTextLine(page::composedText(texte, buffer).toString(), finParagraphe);
}

void Renderer::tradcode(QStringView ligne) {
    directive_ = ligne;
    const QStringView d = ligne.sliced(kDirectiveMark.size());
    QString buffer;
    const QStringView composed = page::composedText(d, buffer);
    for (const Directive& directive : directiveTable())
        if (directive.matches(d))
            directive.run(*this, directive.namesAFile() ? d : composed);
}

void Renderer::printTextLine(const QString& texte, bool finParagraphe) {
    page::Surface& target = surface();
    align(texte);
    // A shift is taken back after the line, unless the pen could not follow it.
    const std::int16_t shift = state_.decalageUnique;
    if (shift != 0)
        target.setPenY(target.penY() + shift);
    if (state_.reliefDecalage != 0)
        printShadow(texte);
    target.print(texte);
    if (shift != 0) {
        target.setPenY(target.penY() - shift);
        state_.decalageUnique = 0;
    }
    if (finParagraphe) {
        movePenYBy(static_cast<double>(state_.interligne) * target.textHeight());
        target.setPenX(state_.margeGauche);
    }
}

void Renderer::align(const QString& texte) {
    if (state_.alignement != 0)
        surface().setPenX(alignedX(state_, surface().textWidth(texte), surface().penX()));
}

void Renderer::printShadow(const QString& texte) {
    page::Surface& target = surface();
    const QRgb ink = target.ink();
    const QPointF pen = target.pen();
    const auto shadow = qbColor(state_.reliefCouleur);
    if (check(shadow.has_value(), u"la couleur du relief n’est pas dans la palette"))
        target.setInk(*shadow);
    const double offset = state_.reliefDecalage * page::kTwipsPerPixel;
    target.setPenX(pen.x() + offset);
    target.setPenY(pen.y() + offset);
    target.print(texte);
    target.setInk(ink);
    target.setPenX(pen.x());
    target.setPenY(pen.y());
}

void Renderer::finish() {
    if (state_.enImpression) {
        state_.hauteurPage = 0;
        return;
    }
    const auto height = text::toInt32(surface().penY());
    check(height.has_value(), u"la page est trop haute");
    state_.hauteurPage = height.value_or(state_.hauteurPage);
    check(surface().setHeightPx(surface().penY() / twipsPerPixel_),
          u"la surface refuse cette hauteur");
    window_.setBusy(false);
}

} // namespace markup
