#pragma once

#include <QObject>
#include <QPageLayout>

#include <functional>

class QComboBox;
class QLayout;

namespace look {

class OptionButton;

/// The controls for the size and the orientation of the paper, for a dialog to place.
class PaperControls : public QObject {
public:
    /// `now` is what they show first. `parent` owns them.
    PaperControls(const QPageLayout& now, QWidget* parent);

    QComboBox& size() { return *size_; }
    /// A row with the two orientations.
    QLayout* orientationRow();

    /// `layout` with the size and the orientation that the controls show.
    QPageLayout applied(QPageLayout layout) const;

    void onChange(std::function<void()> changed) { changed_ = std::move(changed); }

private:
    void tell() const;

    QComboBox* size_;
    OptionButton* portrait_;
    OptionButton* landscape_;
    std::function<void()> changed_;
};

} // namespace look
