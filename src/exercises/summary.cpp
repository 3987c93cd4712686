#include "exercises/summary.h"

#include "exercises/mark_picture.h"
#include "look/button.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "look/scroll_bar.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace exercises {

namespace {

using look::Button;

constexpr int kRule = 1;
constexpr int kGrid = 8;
constexpr double kMargin = 16;
constexpr int kMarkPx = 16;
constexpr QSize kButton(176, 32);

/// A text without addresses of files or of the network: it has its pictures already.
class SummaryText : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

protected:
    QVariant loadResource(int, const QUrl& name) override {
        const bool right = name == QUrl(QStringLiteral("mark:right"));
        const auto picture = markPicture(right ? Mark::InSolution : Mark::NotInSolution);
        return picture->image(QSize(kMarkPx, kMarkPx) * devicePixelRatioF());
    }
    void contextMenuEvent(QContextMenuEvent*) override {} // Qt's own menu is not in French
};

} // namespace

Summary::Summary(QWidget* parent) : QWidget(parent), text_(new SummaryText(this)) {
    setObjectName(QStringLiteral("summary"));
    setAccessibleName(QStringLiteral("Bilan du test"));
    addText();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kRule, kRule, kRule, kGrid);
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

void Summary::addText() {
    text_->setObjectName(QStringLiteral("summaryText"));
    text_->setAccessibleName(accessibleName());
    text_->setVerticalScrollBar(new look::ScrollBar(text_, look::ScrollBar::Top::Minimum));
    text_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text_->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    text_->setFrameShape(QFrame::NoFrame);
    text_->setOpenLinks(false);
    text_->setFont(look::interfaceFont(look::kLabelPx));
    text_->document()->setDocumentMargin(kMargin);
    QPalette colours = text_->palette();
    colours.setColor(QPalette::Base, QColor::fromRgb(look::kPaper));
    colours.setColor(QPalette::Text, QColor::fromRgb(look::kInk));
    colours.setColor(QPalette::Link, QColor::fromRgb(look::kBlue));
    colours.setColor(QPalette::Highlight, QColor::fromRgb(look::kBlue));
    colours.setColor(QPalette::HighlightedText, QColor::fromRgb(look::kPaper));
    text_->setPalette(colours);
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
    look::drawFrame(painter, rect(), 0, look::kRule, QColor::fromRgb(look::kPaper));
}

} // namespace exercises
