#pragma once

#include "exercises/test_state.h"
#include "look/icon.h"

#include <QWidget>

#include <functional>

namespace exercises {

/// `Picture1`: the progress strip, one band a question. A click chooses a question, and so do the
/// arrow keys, Home and End.
class Strip : public QWidget {
public:
    /// Shows `test`, which must outlive it.
    Strip(const TestState& test, QWidget* parent);

    /// Called with the height, from the top, at which a question was chosen.
    void onChosen(std::function<void(double y)> choose) { choose_ = std::move(choose); }

    /// Shows the test as it stands now, and tells screen readers what changed.
    void refresh();

    const TestState& test() const { return test_; }
    /// What its band is called: "Question 3, juste".
    QString nameOf(int question) const;
    /// Place of a question's band, empty when there is none.
    QRect bandRect(int question) const;

protected:
    void paintEvent(QPaintEvent* event) override; ///< `Picture1_Paint`
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override; ///< `Picture1_MouseUp`
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool event(QEvent* event) override;

private:
    void paintBand(QPainter& painter, int question) const;
    void paintMark(QPainter& painter, const QRect& band, int state) const;
    void chooseQuestion(int question);

    const TestState& test_;
    std::function<void(double)> choose_;
    look::Icon right_;
    look::Icon wrong_;
};

/// `Image4`: the face that marks the band of the question shown. It lies over the strip and lets
/// clicks through.
class Marker : public QWidget {
public:
    static constexpr QSize kSize{72, 36};

    explicit Marker(QWidget* parent);

    /// One of the faces 1 to 7.
    void setFace(int face);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    look::Icon face_;
};

} // namespace exercises
