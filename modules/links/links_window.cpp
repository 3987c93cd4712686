#include "links/links_window.h"

#include "common/module_run.h"
#include "common/plain_label.h"
#include "links/link_row.h"
#include "look/announcement.h"
#include "look/button.h"
#include "look/pixels.h"
#include "look/scroll_bar.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

namespace links {

namespace {

constexpr int kModule = 7;
constexpr QSize kSize(620, 640);
constexpr int kMargin = 24;
constexpr int kHeadingPx = 16;
constexpr auto kBold = look::Weight::Bold;
constexpr int kLeastHeight = 200; ///< of the page: some links at once

/// Stands below the page, parted from it by a line.
class Foot : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(QRectF(0, 0, width(), look::crisp(painter)), QColor::fromRgb(look::kRule));
    }
};

} // namespace

LinksWindow::LinksWindow(const std::vector<LinkGroup>& groups, const QString& edition, Opener open)
    : open_(std::move(open)), scroll_(new QScrollArea) {
    setWindowTitle(common::windowTitle(QStringLiteral("Liens utiles"), kModule));
    auto* centre = new QWidget;
    auto* layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    QWidget* foot = footer(edition); // the links write into it
    scroll_->setWidget(page(groups));
    scroll_->setWidgetResizable(true);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setVerticalScrollBar(new look::ScrollBar(scroll_, look::ScrollBar::Top::Minimum));
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setMinimumSize(scroll_->widget()->minimumSizeHint().width() +
                                scroll_->verticalScrollBar()->sizeHint().width(),
                            kLeastHeight);
    layout->addWidget(scroll_, 1);
    layout->addWidget(foot);
    setCentralWidget(centre);
    resize(kSize.boundedTo(screen()->availableSize()));
}

QWidget* LinksWindow::page(const std::vector<LinkGroup>& groups) {
    auto* widget = new QWidget;
    QPalette paper = widget->palette();
    paper.setColor(QPalette::Window, QColor::fromRgb(look::kPaper));
    widget->setPalette(paper);
    widget->setAutoFillBackground(true);
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(kMargin, 20, kMargin, kMargin);
    layout->setSpacing(0);
    layout->addWidget(common::plainLabel(QStringLiteral("Liens utiles"), {look::kTitlePx, kBold}));
    layout->addSpacing(4);
    layout->addWidget(common::plainLabel(
        QStringLiteral("Chaque adresse s’ouvre dans votre navigateur."), {.ink = look::kMuted}));
    for (const LinkGroup& group : groups) {
        layout->addSpacing(18);
        layout->addWidget(common::plainLabel(group.title, {kHeadingPx, kBold}));
        layout->addSpacing(4);
        for (const Link& link : group.links) {
            auto* row = new LinkRow(link);
            row->onPointedAt([this, row] {
                scroll_->ensureWidgetVisible(row, 0, 8);
                if (failed_.isEmpty())
                    line_->setText(row->link().address.toString());
            });
            connect(row, &QAbstractButton::clicked, this, [this, row] { follow(row->link()); });
            layout->addWidget(row);
        }
    }
    layout->addStretch(1);
    return widget;
}

QWidget* LinksWindow::footer(const QString& edition) {
    auto* widget = new Foot;
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins(kMargin, 8, kMargin, 8);
    line_ = common::paragraph({});
    line_->setMinimumHeight(34);
    copy_ = new look::Button(QStringLiteral("Copier l’adresse"), {}, widget);
    copy_->hide();
    connect(copy_, &QPushButton::clicked, this, &LinksWindow::copy);
    layout->addWidget(line_, 1);
    layout->addWidget(copy_);
    layout->addWidget(common::plainLabel(edition, {.pixels = look::kSmallPx, .ink = look::kMuted}));
    return widget;
}

void LinksWindow::follow(const Link& link) {
    const bool opened = open_(link.address);
    failed_ = opened ? QUrl() : link.address;
    copy_->setVisible(!opened);
    line_->setText(opened ? link.address.toString()
                          : QStringLiteral("Aucun navigateur n’a pu être ouvert. L’adresse "
                                           "est\u00A0: %1")
                                .arg(link.address.toString()));
    if (!opened)
        look::announce(*this, line_->text());
}

void LinksWindow::copy() {
    QGuiApplication::clipboard()->setText(failed_.toString());
    line_->setText(QStringLiteral("Adresse copiée\u00A0: %1").arg(failed_.toString()));
    look::announce(*this, line_->text());
    failed_.clear();
    copy_->hide();
}

} // namespace links
