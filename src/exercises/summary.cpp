#include "exercises/summary.h"

#include "exercises/mark_picture.h"
#include "look/button.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace exercises {

namespace {

using look::Button;

constexpr int kGrid = 8;
constexpr double kMargin = 16;
constexpr int kMarkPx = 16;
constexpr QSize kButton(176, 32);

/// The text with the two marks, which are all the pictures that it has.
class SummaryText : public look::ReadingText {
public:
    using ReadingText::ReadingText;

protected:
    QVariant loadResource(int, const QUrl& name) override {
        const bool right = name == QUrl(QStringLiteral("mark:right"));
        const auto picture = markPicture(right ? Mark::InSolution : Mark::NotInSolution);
        return picture->image(QSize(kMarkPx, kMarkPx) * devicePixelRatioF());
    }
};

} // namespace

Summary::Summary(QWidget* parent) : QWidget(parent), text_(new SummaryText(kMargin, this)) {
    setObjectName(QStringLiteral("summary"));
    setAccessibleName(QStringLiteral("Bilan du test"));
    text_->setObjectName(QStringLiteral("summaryText"));
    text_->setAccessibleName(accessibleName());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(look::kInsideFrame.left(), look::kInsideFrame.top(),
                               look::kInsideFrame.right(), kGrid);
    column->setSpacing(kGrid);
    column->addWidget(text_, 1);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(kGrid, 0, kGrid, 0);
    row->setSpacing(kGrid);
    row->addStretch();
    const auto add = [&](const char* name, const QString& caption, Button::Kind kind) {
        auto* button = new Button(caption, {.kind = kind, .icon = QStringLiteral("retry")}, this);
        button->setObjectName(QString::fromLatin1(name));
        button->setFixedSize(kButton);
        row->addWidget(button);
        return button;
    };
    wholeTest_ = add("wholeTest", QStringLiteral("Refaire le test"), Button::Kind::Ordinary);
    wrongAnswers_ = add("wrongAnswers", QStringLiteral("Refaire les fautes"), Button::Kind::Main);
    column->addLayout(row);
    connect(wholeTest_, &QPushButton::clicked, this, [this] { ways_.wholeTest(); });
    connect(wrongAnswers_, &QPushButton::clicked, this, [this] { ways_.wrongAnswers(); });
    connect(text_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { follow(link); });
    hide();
}

void Summary::show(const QString& html, bool anyWrong) {
    text_->setHtml(html);
    wrongAnswers_->setVisible(anyWrong);
    wholeTest_->setKind(anyWrong ? Button::Kind::Ordinary : Button::Kind::Main);
    QWidget::show();
}

void Summary::takeFocus() {
    text_->setFocus();
}

void Summary::follow(const QUrl& link) {
    // Copied: what is called may take the text away.
    const QString scheme = link.scheme();
    const QString target = link.path(QUrl::FullyDecoded);
    if (scheme == u"question")
        ways_.question(target.toInt());
    else if (scheme == u"page")
        ways_.page(target);
}

void Summary::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    text_->paintFrame(painter, rect(), 0, look::kRule);
}

} // namespace exercises
