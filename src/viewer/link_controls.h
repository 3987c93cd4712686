#pragma once

#include "markup/drawn_page.h"
#include "page/faces/font_book.h"
#include "viewer/collaborators.h"

#include <QObject>
#include <QPointer>

#include <array>
#include <vector>

namespace viewer {

class FloatingMenu;
class FocusRing;
class LinkLabel;
class LinkPicture;
class LinkWidget;
class Multim;

/// The arrays `Labelien` and `Imagelien` of the main window and their handlers. What the table of
/// the links says stands on the window once show() was called. A control is made when a page first
/// needs it: most pages have few, and start-up has none to wait for.
class LinkControls : public QObject, public PageLinks {
public:
    /// All references must outlive it.
    LinkControls(Multim& window, const page::FontBook& fonts, markup::LinkTable& table);
    ~LinkControls() override;

    // PageLinks
    void reset() override;
    void show() override;
    void resetHighlight(int kept) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    template <class Control>
    using Array = std::array<Control*, markup::LinkTable::kLast + 1>;

    void Labelien_Click(int index);
    void Labelien_MouseMove(int index);
    void Imagelien_Click(int index);
    void choixflot_Click(const QString& target);

    template <class Control>
    Control& member(Array<Control>& controls, int index);
    template <class Control>
    void showArray(Array<Control>& controls, const markup::LinkTable::Elements& elements);
    void connectClick(LinkLabel& label);
    void connectClick(LinkPicture& picture);
    void tellFeet() const;
    void putInReadingOrder();
    void showHighlight();
    void popUp(LinkPicture& picture);
    /// Runs the tag of a link, with the hourglass over the control clicked.
    void run(LinkWidget& clicked);
    void focusCame(LinkWidget& link, Qt::FocusReason reason);
    std::vector<LinkWidget*> made() const;

    Multim& window_;
    const page::FontBook& fonts_;
    markup::LinkTable& table_;
    Array<LinkLabel> Labelien_{};
    Array<LinkPicture> Imagelien_{};
    FocusRing* ring_;
    QPointer<FloatingMenu> menuflot_;
};

} // namespace viewer
