#pragma once

#include <QWidget>

#include <array>

class QRadioButton;

namespace calculator {

/// A captioned frame around two options, one of which is chosen.
class OptionFrame : public QWidget {
public:
    /// The options are named `name` and their index.
    OptionFrame(const QString& caption, const QString& name, const std::array<QString, 2>& captions,
                QWidget* parent);

    QRadioButton* option(int index) const { return options_[static_cast<std::size_t>(index)]; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QString caption_;
    std::array<QRadioButton*, 2> options_;
};

} // namespace calculator
