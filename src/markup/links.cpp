#include "markup/arguments.h"
#include "markup/columns.h"
#include "markup/directives.h"
#include "markup/renderer.h"
#include "page/link_view.h"
#include "page/twips.h"

namespace markup {

namespace {

constexpr qsizetype kKeywordLength = 5;

/// Tag of a picture that opens a floating menu.
constexpr char16_t kFloating[] = u"FLOTTANT";

/// Key of the sign of a link in the image list.
constexpr char16_t kLinkSign[] = u"LK";

/// Side of what stands for a picture that the image list does not have, in twips.
constexpr double kPlaceholderSide = 24 * page::kTwipsPerPixel;

/// The lowest free element; element 0 once all are taken, so that a page with more links than
/// elements still shows its last ones.
int freeElement(const LinkTable::Elements& elements) {
    for (int index = 0; index <= LinkTable::kLast; ++index)
        if (elements.slot(index)->link.tag.isEmpty())
            return index;
    return 0;
}

/// The lowest free entry; entry 0 once a menu is full.
int freeEntry(const LinkTable::Menu& menu) {
    for (int entry = 0; entry <= LinkTable::kLastEntry; ++entry)
        if (menu.slot(entry)->caption.isEmpty())
            return entry;
    return 0;
}

/// The caption with the line that was kept for it; that line is used up.
QString takeCaption(DrawingState& state, QStringView caption) {
    const QString whole = state.lienEnAttente + caption.toString();
    state.lienEnAttente.clear();
    return whole;
}

/// Takes a free control of the page for the link and shows it; gives its index.
int placeControl(Renderer& renderer, LinkTable::Elements& elements, page::LinkOperation link) {
    link.index = freeElement(elements);
    *elements.slot(link.index) = {link, true};
    renderer.recording().add(link);
    return link.index;
}

/// Where no link can be followed, its caption is part of the text.
void printCaption(Renderer& renderer, const page::LinkOperation& link) {
    page::Surface& surface = renderer.surface();
    const page::Font before = surface.font();
    const QPointF pen = surface.pen();
    surface.setUnderline(false);
    for (const page::TextOperation& line : page::captionLines(link, surface.metrics())) {
        surface.setPenX(pen.x());
        surface.setPenY(line.y);
        surface.print(line.text);
    }
    surface.setUnderline(before.underline);
    surface.setPenX(pen.x());
    surface.setPenY(pen.y());
}

/// An empty frame in place of a picture that is not there.
void drawPlaceholder(page::Surface& surface, double x, double y) {
    surface.line(x, y, x + kPlaceholderSide, y);
    surface.line(x + kPlaceholderSide, y, x + kPlaceholderSide, y + kPlaceholderSide);
    surface.line(x + kPlaceholderSide, y + kPlaceholderSide, x, y + kPlaceholderSide);
    surface.line(x, y + kPlaceholderSide, x, y);
}

void printPicture(Renderer& renderer, const page::LinkOperation& link) {
    page::Surface& surface = renderer.surface();
    if (link.picture)
        surface.paint(link.picture, link.width, link.height, link.key, true);
    else
        drawPlaceholder(surface, link.x, link.y);
}

void keepPrinted(Renderer& renderer, const page::LinkOperation& link) {
    renderer.page().printedLinks.push_back({link.surface, link.x, link.y, link.width, link.height,
                                            link.tag, link.tooltip, link.caption.simplified()});
}

void printLink(Renderer& renderer, const page::LinkOperation& link) {
    printCaption(renderer, link);
    keepPrinted(renderer, link);
}

page::LinkOperation linkAtPen(Renderer& renderer, page::LinkControl control) {
    const page::Surface& surface = renderer.surface();
    page::LinkOperation link;
    link.surface = surface.id();
    link.control = control;
    link.x = surface.penX();
    link.y = surface.penY();
    return link;
}

/// The symbol with this key; the sign of a link for a key that the image list does not have, so
/// that there is something to click, the same wherever the page is shown.
std::shared_ptr<const page::Picture> symbolOrSign(PictureSource& pictures, const QString& key) {
    auto symbol = pictures.symbol(key);
    return symbol ? symbol : pictures.symbol(QString::fromUtf16(kLinkSign));
}

/// Places a picture link; gives its index, nothing where links are only printed.
std::optional<int> placePicture(Renderer& renderer, QStringView key, const QString& target,
                                const QString& tooltip) {
    page::LinkOperation link = linkAtPen(renderer, page::LinkControl::Imagelien);
    link.tag = target;
    link.tooltip = tooltip;
    link.key = key.toString();
    link.picture = symbolOrSign(renderer.pictures(), link.key);
    const QSize pixels = link.picture ? link.picture->size() : QSize();
    link.width = link.picture ? pixels.width() * page::kTwipsPerPixel : kPlaceholderSide;
    link.height = link.picture ? pixels.height() * page::kTwipsPerPixel : kPlaceholderSide;

    std::optional<int> index;
    if (renderer.onCoursePage())
        index = placeControl(renderer, renderer.page().links.Imagelien, link);
    else
        printPicture(renderer, link);
    if (!renderer.onCoursePage())
        keepPrinted(renderer, link);
    renderer.surface().setPenX(link.x + link.width);
    renderer.surface().setPenY(link.y);
    return index;
}

} // namespace

void firstCaptionLine(Renderer& renderer, QStringView d) {
    renderer.state().lienEnAttente = d.sliced(kKeywordLength).toString() + QStringLiteral("\r\n");
}

void textLink(Renderer& renderer, QStringView d) {
    const auto argument = splitAtLastSharp(d, kKeywordLength);
    if (!argument)
        return;
    page::Surface& surface = renderer.surface();
    page::LinkOperation link = linkAtPen(renderer, page::LinkControl::Labelien);
    link.caption = takeCaption(renderer.state(), argument->before);
    link.tag = argument->after.toString();
    link.font = surface.font();
    link.font.underline = false; // the mark of the link under the pointer
    link.ink = surface.ink();
    const auto extent = page::captionExtent(link.caption, link.font, surface.metrics());
    link.width = extent.width;
    link.height = extent.height;
    if (renderer.onCoursePage())
        placeControl(renderer, renderer.page().links.Labelien, link);
    else
        printLink(renderer, link);
    surface.setPenX(link.x + link.width);
}

void pictureLink(Renderer& renderer, QStringView d) {
    const QStringView argument = d.sliced(kKeywordLength);
    const qsizetype keyLength = qMin(kKeyLength, argument.size());
    placePicture(renderer, argument.first(keyLength), argument.sliced(keyLength).toString(), {});
}

void pictureLinkWithTooltip(Renderer& renderer, QStringView d) {
    const auto argument = splitAtLastSharp(d, kKeywordLength);
    if (!argument)
        return;
    const qsizetype keyLength = qMin(kKeyLength, argument->before.size());
    placePicture(renderer, argument->before.first(keyLength), argument->after.toString(),
                 argument->before.sliced(keyLength).toString());
}

void floatingMenu(Renderer& renderer, QStringView d) {
    const auto index =
        placePicture(renderer, lastCharacters(d, kKeyLength), QString::fromUtf16(kFloating), {});
    if (index)
        renderer.state().menuCourant = static_cast<std::int16_t>(*index);
}

void menuEntry(Renderer& renderer, QStringView d) {
    const auto argument = splitAtLastSharp(d, kKeywordLength);
    if (!argument)
        return;
    DrawingState& state = renderer.state();
    const QString caption = takeCaption(state, argument->before);
    if (!renderer.onCoursePage())
        return;
    LinkTable::Menu* menu = renderer.page().links.menusFlottants.slot(state.menuCourant);
    if (!renderer.check(menu != nullptr, u"il y a plus de 21 menus flottants"))
        return;
    const int entry = freeEntry(*menu);
    *menu->slot(entry) = {caption, argument->after.toString()};
    renderer.recording().add(
        page::MenuOperation{state.menuCourant, entry, caption, argument->after.toString()});
}

} // namespace markup
