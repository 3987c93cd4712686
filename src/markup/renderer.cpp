#include "markup/renderer.h"

#include "markup/directive_table.h"
#include "markup/qb_color.h"
#include "markup/reasons.h"
#include "page/face_names.h"
#include "page/printable_text.h"
#include "page/surface_widths.h"
#include "page/twips.h"
#include "text/rounding.h"

namespace markup {

namespace {

using page::SurfaceId;

constexpr QStringView kLineEnd = u"\r\n";
constexpr QStringView kDirectiveMark = u"##";
constexpr QChar kParagraphEnd = u'\u00B6';

/// Width of the text column on paper, in pixels of the screen.
constexpr double kPaperColumnPx = 600;

page::Surface surfaceOf(SurfaceId id, int widthPx, const DrawingTools& tools,
                        page::Recording& recording) {
    return {id, widthPx * page::kTwipsPerPixel, tools.metrics, recording};
}

/// Where a text begins.
SurfaceId areaOf(DrawnAs as) {
    switch (as) {
    case DrawnAs::Question:
        return SurfaceId::Picture2;
    case DrawnAs::Paper:
        return SurfaceId::Printer;
    case DrawnAs::CoursePage:
        break;
    }
    return SurfaceId::PictureTexte;
}

} // namespace

Renderer::Renderer(const PageText& text, const DrawingTools& tools, DrawnPage& page)
    : text_(text), tools_(tools), page_(page),
      surfaces_{
          surfaceOf(SurfaceId::PictureTexte, page::kPageWidthPx, tools, page.recording),
          surfaceOf(SurfaceId::PictureIllus, page::kIllustrationWidthPx, tools, page.recording),
          surfaceOf(SurfaceId::Titre, page::kTitleWidthPx, tools, page.recording),
          surfaceOf(SurfaceId::Picture2, page::kPageWidthPx, tools, page.recording),
          surfaceOf(SurfaceId::Printer, page::kPageWidthPx, tools, page.recording)},
      nowhere_(surfaceOf(SurfaceId::Printer, page::kPageWidthPx, tools, discarded_)),
      area_(surface(areaOf(text.as))), surfaceDessin_(&area_) {
    page_.hauteurPage = text.hauteurPage;
    if (text.as == DrawnAs::Question)
        area_.setHeightPx(kQuestionAreaTwips / page::kTwipsPerPixel);
}

void Renderer::setBusy(bool busy) {
    if (tools_.watcher)
        tools_.watcher->setBusy(busy);
}

void Renderer::refresh() {
    if (tools_.watcher)
        tools_.watcher->refresh(surface().id());
}

double Renderer::fullWidth() const {
    return enImpression() ? kPaperColumnPx * page::kTwipsPerPixel : surfaceDessin_->scaleWidth();
}

bool Renderer::check(bool done, const char16_t* reason) {
    if (!done)
        recording().add(
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
    check(surface().setPenY(surface().penY() + twips), kPenOutside);
}

void Renderer::initecran() {
    DrawingState& state = tools_.state;
    state.lienEnAttente.clear();

    page::Surface& target = surface();
    target.setFontPoints(10);
    target.setFace(page::kTextFace);
    target.setBold(false);
    target.setUnderline(false);
    target.setItalic(false);
    target.setInk(kBlack);
    target.setPenX(0);
    target.setPenY(0);

    state.reliefDecalage = 0;
    state.alignement = 0;
    state.dansTableau = false;
    for (int edge = TopEdge; edge <= RightEdge; ++edge)
        state.couleursBord.store(edge, *qbColor(kLightBlueIndex));
    state.interligne = 1;
    state.decalageUnique = 0;
    state.margeGauche = 0;
    state.largeurCadre = 0;
    store(state.margeDroite, fullWidth());

    target.setLineWidth(1);
    // Paper asks for no preparation: its surface, too, counts in twips and prints text without a
    // ground.
    setBusy(true);

    // An empty line printed at the pen ends with the pen at the left; the drawing then goes on
    // below what stands already.
    target.setPenX(0);
    target.setPenY(page_.hauteurPage);
}

void Renderer::affichepage() {
    page_.lines.assign(recording().size(), 0);
    initecran();
    const QStringView code = text_.source;
    qsizetype debut = 0;
    // What follows the last line end is never drawn.
    for (qsizetype end; (end = code.indexOf(kLineEnd, debut)) >= 0; debut = end + kLineEnd.size()) {
        ++lineNumber_;
        drawLine(code.sliced(debut, end - debut));
        page_.lines.resize(recording().size(), lineNumber_);
    }
    directive_ = {};
    finish();
    page_.lines.resize(recording().size(), lineNumber_);
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
    if (d.isEmpty())
        return;
    for (const Directive* const directive : directivesFrom(d.front()))
        if (directive->matches(d))
            directive->run(*this, directive->namesAFile() ? d : composed);
}

void Renderer::printTextLine(const QString& texte, bool finParagraphe) {
    page::Surface& target = surface();
    align(texte);
    // A shift is taken back after the line, unless the pen could not follow it.
    const std::int16_t shift = state().decalageUnique;
    if (shift != 0)
        target.setPenY(target.penY() + shift);
    if (state().reliefDecalage != 0)
        printShadow(texte);
    target.print(texte);
    if (shift != 0) {
        target.setPenY(target.penY() - shift);
        state().decalageUnique = 0;
    }
    if (finParagraphe) {
        movePenYBy(static_cast<double>(state().interligne) * target.textHeight());
        target.setPenX(state().margeGauche);
    }
}

void Renderer::align(const QString& texte) {
    if (state().alignement != 0)
        surface().setPenX(alignedX(state(), surface().textWidth(texte), surface().penX()));
}

void Renderer::printShadow(const QString& texte) {
    page::Surface& target = surface();
    const QRgb ink = target.ink();
    const QPointF pen = target.pen();
    const auto shadow = qbColor(state().reliefCouleur);
    if (check(shadow.has_value(), u"la couleur du relief n’est pas dans la palette"))
        target.setInk(*shadow);
    const double offset = state().reliefDecalage * page::kTwipsPerPixel;
    target.setPenX(pen.x() + offset);
    target.setPenY(pen.y() + offset);
    target.print(texte);
    target.setInk(ink);
    target.setPenX(pen.x());
    target.setPenY(pen.y());
}

void Renderer::finish() {
    if (enImpression()) {
        page_.hauteurPage = 0;
        // A page that ended nowhere leaves the paper to whoever writes the footer.
        drawOn(area_);
        return;
    }
    const auto height = text::toInt32(surface().penY());
    check(height.has_value(), u"la page est trop haute");
    page_.hauteurPage = height.value_or(page_.hauteurPage);
    check(surface().setHeightPx(surface().penY() / page::kTwipsPerPixel), kHeightRefused);
    setBusy(false);
}

void Renderer::tellEnd() const {
    for (std::size_t i = 0; i < surfaces_.size(); ++i)
        page_.heightsPx[i] = surfaces_[i].heightPx();
    page_.end = {surfaceDessin_->id(), surfaceDessin_->pen(), surfaceDessin_->font(),
                 surfaceDessin_->ink()};
}

} // namespace markup
