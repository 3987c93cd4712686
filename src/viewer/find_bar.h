#pragma once

#include <QWidget>

#include <functional>

class QLabel;

namespace look {
class Button;
class TextField;
} // namespace look

namespace viewer {

/// The strip at the foot of the page in which a person searches the page: a field, buttons to the
/// previous and the next occurrence, how many there are, and a button that closes it. Enter in the
/// field leads to the next occurrence, with Shift to the previous one.
class FindBar : public QWidget {
public:
    /// Size of the strip, in pixels.
    static constexpr int kWidth = 620;
    static constexpr int kHeight = 40;

    explicit FindBar(QWidget* parent);

    struct Actions {
        std::function<void()> typed; ///< the person has changed the text
        std::function<void()> next;
        std::function<void()> previous;
        std::function<void()> close;
    };
    void setActions(Actions actions) { actions_ = std::move(actions); }

    QString text() const;
    void setText(const QString& text);

    /// Gives the keyboard to the field, its text selected.
    void takeKeyboard();

    /// Shows how the search stands; the buttons have an effect when something was found. A screen
    /// reader says it.
    void setStatus(const QString& words, bool found);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    look::Button* addButton(const char* name, const char* icon, const QString& toolTip, int x,
                            std::function<void()> Actions::*action);
    look::TextField& field();

    Actions actions_;
    look::TextField* field_ = nullptr;
    look::Button* previous_;
    look::Button* next_;
    QLabel* status_;
};

} // namespace viewer
