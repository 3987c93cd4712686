#pragma once

#include "look/icon.h"
#include "look/interface_font.h"

#include <QPushButton>

namespace look {

/// A push button as all windows have them, painted by hand. Mnemonics ("&Aide") work with Alt and
/// are underlined only while MnemonicDisplay says so; Enter and Space press the button that has the
/// focus. Buttons take the focus from the keyboard only: a click leaves it where it is.
class Button : public QPushButton {
public:
    enum class Kind {
        Ordinary,
        Main,    ///< the one action that a window is there for
        Toolbar, ///< without border or ground at rest
        Segment, ///< one of a row of which one stays pressed; the arrow keys lead through the row
    };

    enum class IconPlace { Left, Right, Top };

    struct Look {
        Kind kind = Kind::Ordinary;
        QString icon; ///< name of the drawing; empty for none
        IconPlace place = IconPlace::Left;
        Weight weight = Weight::Regular;
    };

    Button(const QString& caption, const Look& look, QWidget* parent);

    void setIconName(const QString& name);

    /// A key that, with Alt, presses the button whatever its caption says later.
    void setLastingMnemonic(QChar key);
    void setCaption(const QString& caption);

    /// For a window whose one main action changes with what it shows.
    void setKind(Kind kind);

    void setMnemonicShown(bool shown);

    /// Caption without the sign before the mnemonic.
    QString plainCaption() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    /// The caption in the painter's pen and font, its mnemonic underlined when that is shown.
    virtual void paintCaption(QPainter& painter, QPointF baseline) const;
    /// Width of what that paints, in pixels.
    virtual double captionWidth() const;

private:
    struct Colours;

    bool isBlue() const;
    Colours colours() const;
    void paintGround(QPainter& painter, const Colours& colours) const;
    void paintContent(QPainter& painter, const Colours& colours) const;
    qsizetype mnemonicPosition() const;

    Kind kind_;
    IconPlace place_;
    Icon icon_;
    QChar lastingMnemonic_;
    bool mnemonicShown_ = false;
};

} // namespace look
