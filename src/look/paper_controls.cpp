#include "look/paper_controls.h"

#include "look/option_button.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>

namespace look {

namespace {

constexpr int kBetweenOptions = 24;
constexpr int kFieldHeight = 32;

constexpr QPageSize::PageSizeId kSizes[] = {QPageSize::A4, QPageSize::A3, QPageSize::A5,
                                            QPageSize::Letter};

QString sizeName(const QPageSize& size) {
    return size.id() == QPageSize::Letter ? QStringLiteral("US Letter") : size.name();
}

} // namespace

PaperControls::PaperControls(const QPageLayout& now, QWidget* parent)
    : QObject(parent), size_(new QComboBox(parent)),
      portrait_(new OptionButton(QStringLiteral("Po&rtrait"), parent)),
      landscape_(new OptionButton(QStringLiteral("Pa&ysage"), parent)) {
    for (const QPageSize::PageSizeId id : kSizes)
        size_->addItem(sizeName(QPageSize(id)), id);
    // A printer may have been set to a size of its own.
    const QPageSize size = now.pageSize();
    if (size.id() != QPageSize::Custom && size_->findData(size.id()) < 0)
        size_->addItem(sizeName(size), size.id());
    size_->setCurrentIndex(qMax(0, size_->findData(size.id())));
    size_->setFixedHeight(kFieldHeight);
    auto* orientations = new QButtonGroup(this);
    orientations->addButton(portrait_);
    orientations->addButton(landscape_);
    (now.orientation() == QPageLayout::Portrait ? portrait_ : landscape_)->setChecked(true);
    connect(size_, &QComboBox::currentIndexChanged, this, [this] { tell(); });
    connect(portrait_, &QAbstractButton::toggled, this, [this] { tell(); });
}

void PaperControls::tell() const {
    if (changed_)
        changed_();
}

QLayout* PaperControls::orientationRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(kBetweenOptions);
    row->addWidget(portrait_);
    row->addWidget(landscape_);
    row->addStretch();
    return row;
}

QPageLayout PaperControls::applied(QPageLayout layout) const {
    layout.setPageSize(QPageSize(static_cast<QPageSize::PageSizeId>(size_->currentData().toInt())));
    layout.setOrientation(portrait_->isChecked() ? QPageLayout::Portrait : QPageLayout::Landscape);
    return layout;
}

} // namespace look
