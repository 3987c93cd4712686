#include "viewer/link_controls.h"

#include "look/picture_box.h"
#include "page/surface.h"
#include "page/twips.h"
#include "viewer/floating_menu.h"
#include "viewer/focus_ring.h"
#include "viewer/link_highlight.h"
#include "viewer/link_label.h"
#include "viewer/link_order.h"
#include "viewer/link_picture.h"
#include "viewer/multim.h"

#include <QCursor>
#include <QFocusEvent>

#include <algorithm>
#include <map>

namespace viewer {

namespace {

/// The pointer of all links: the system's own hand, which is as large, and as visible, as the
/// person has chosen.
constexpr Qt::CursorShape kPointer = Qt::PointingHandCursor;

using page::SurfaceId;
constexpr SurfaceId kSurfaces[] = {SurfaceId::Titre, SurfaceId::PictureTexte,
                                   SurfaceId::PictureIllus};

} // namespace

LinkControls::LinkControls(Multim& window, const page::FontBook& fonts, markup::LinkTable& table)
    : window_(window), fonts_(fonts), table_(table), ring_(new FocusRing(&window)) {}

LinkControls::~LinkControls() = default; // the controls belong to the window

template <class Control>
Control& LinkControls::member(Array<Control>& controls, int index) {
    Control*& control = controls[static_cast<std::size_t>(index)];
    if (!control) {
        control = new Control(index, fonts_, &window_.pageArea());
        control->setCursor(kPointer);
        control->installEventFilter(this);
        connectClick(*control);
    }
    return *control;
}

void LinkControls::connectClick(LinkLabel& label) {
    connect(&label, &QAbstractButton::clicked, this,
            [this, index = label.index()] { Labelien_Click(index); });
}

void LinkControls::connectClick(LinkPicture& picture) {
    connect(&picture, &QAbstractButton::clicked, this,
            [this, index = picture.index()] { Imagelien_Click(index); });
}

std::vector<LinkWidget*> LinkControls::made() const {
    std::vector<LinkWidget*> all(Labelien_.begin(), Labelien_.end());
    all.insert(all.end(), Imagelien_.begin(), Imagelien_.end());
    std::erase(all, nullptr);
    return all;
}

void LinkControls::reset() {
    if (menuflot_)
        menuflot_->close();
    ring_->surround(nullptr);
    for (LinkWidget* link : made())
        link->freeLink();
}

void LinkControls::show() {
    tellFeet();
    showArray(Labelien_, table_.Labelien);
    showArray(Imagelien_, table_.Imagelien);
    putInReadingOrder();
}

template <class Control>
void LinkControls::showArray(Array<Control>& controls,
                             const markup::LinkTable::Elements& elements) {
    for (int index = 0; index <= markup::LinkTable::kLast; ++index) {
        const markup::LinkTable::Element& element = *elements.slot(index);
        if (element.visible)
            member(controls, index).showLink(element.link, window_.box(element.link.surface));
    }
}

/// Tells the areas how far down links stand on them: a page ends below its last link.
void LinkControls::tellFeet() const {
    std::map<SurfaceId, double> feet;
    for (const auto* elements : {&table_.Labelien, &table_.Imagelien})
        for (int index = 0; index <= markup::LinkTable::kLast; ++index)
            if (const auto& element = *elements->slot(index); element.visible) {
                double& foot = feet[element.link.surface];
                foot = std::max(foot, element.link.y + element.link.height);
            }
    for (const SurfaceId surface : kSurfaces)
        window_.box(surface).setControlsFoot(
            qCeil(std::min(feet[surface] / page::kTwipsPerPixel, page::kMaxSurfaceHeightPx)));
}

/// The Tab key leads from the page to its links, in the order in which they are read; a screen
/// reader finds them in the same order. A picture beside words that lead to the same place is no
/// stop of its own.
void LinkControls::putInReadingOrder() {
    std::map<const page::LinkOperation*, LinkWidget*> shown;
    std::vector<const page::LinkOperation*> links;
    for (LinkWidget* link : made())
        if (!link->isHidden()) {
            shown[&link->link()] = link;
            links.push_back(&link->link());
        }
    QWidget* before = &window_.pageArea();
    links = inReadingOrder(std::move(links));
    for (std::size_t at = 0; at < links.size(); ++at) {
        const page::LinkOperation* link = links[at];
        QWidget* control = shown[link];
        const bool twin = (at > 0 && isPictureOf(*link, *links[at - 1])) ||
                          (at + 1 < links.size() && isPictureOf(*link, *links[at + 1]));
        control->setFocusPolicy(twin ? Qt::NoFocus : Qt::TabFocus);
        control->raise(); // the children of a window stand in this order too
        if (twin)
            continue;
        QWidget::setTabOrder(before, control);
        before = control;
    }
}

void LinkControls::resetHighlight(int kept) {
    resetLinkHighlight(table_.Labelien, kept);
    showHighlight();
}

void LinkControls::Labelien_MouseMove(int index) {
    highlightLink(table_.Labelien, index);
    showHighlight();
}

void LinkControls::showHighlight() {
    for (LinkLabel* label : Labelien_)
        if (label && !label->isHidden()) {
            const page::LinkOperation& link = table_.Labelien.slot(label->index())->link;
            if (label->link() != link)
                label->showLink(link, window_.box(link.surface));
        }
}

void LinkControls::Labelien_Click(int index) {
    run(*Labelien_.at(static_cast<std::size_t>(index)));
}

void LinkControls::Imagelien_Click(int index) {
    LinkPicture& picture = *Imagelien_.at(static_cast<std::size_t>(index));
    if (picture.link().tag == u"FLOTTANT")
        popUp(picture);
    else
        run(picture);
}

void LinkControls::run(LinkWidget& clicked) {
    // The page that the action shows may give the control another tag while this runs.
    const QString tag = clicked.link().tag;
    clicked.setCursor(Qt::WaitCursor);
    window_.followLink(tag);
    clicked.setCursor(kPointer);
}

/// The menu has the number of the picture. It comes up at the pointer, or below the picture for
/// who pressed a key, and is then ready for the arrow keys.
void LinkControls::popUp(LinkPicture& picture) {
    menuflot_ = new FloatingMenu(table_.menusFlottants.slot(picture.index()), &window_);
    menuflot_->setAccessibleName(picture.accessibleName());
    connect(menuflot_, &QMenu::triggered, this,
            [this](QAction* choixflot) { choixflot_Click(choixflot->data().toString()); });
    if (picture.underMouse()) {
        menuflot_->popup(QCursor::pos());
        return;
    }
    menuflot_->popup(picture.mapToGlobal(QPoint(0, picture.height())));
    const auto choices = menuflot_->actions();
    const auto first = std::find_if(choices.begin(), choices.end(),
                                    [](const QAction* choice) { return choice->isVisible(); });
    if (first != choices.end())
        menuflot_->setActiveAction(*first);
}

void LinkControls::choixflot_Click(const QString& target) {
    window_.followLink(target);
}

bool LinkControls::eventFilter(QObject* watched, QEvent* event) {
    auto& link = *static_cast<LinkWidget*>(watched);
    switch (event->type()) {
    case QEvent::Enter: // the page may have come under the pointer
    case QEvent::MouseMove:
        if (auto* label = dynamic_cast<LinkLabel*>(&link))
            Labelien_MouseMove(label->index());
        break;
    case QEvent::Leave: // for whatever is beside it: a button, the scroll bar, another window
        if (link.link().font.underline)
            resetHighlight(kNone);
        break;
    case QEvent::FocusIn:
        focusCame(link, static_cast<QFocusEvent*>(event)->reason());
        break;
    case QEvent::FocusOut:
        if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
            ring_->surround(nullptr);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void LinkControls::focusCame(LinkWidget& link, Qt::FocusReason reason) {
    // Back from another window or a menu, the page stays where it was.
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
        link.parentWidget() == &window_.pageArea())
        window_.reveal(link.geometry());
    ring_->surround(&link, link.ringReach());
}

} // namespace viewer
