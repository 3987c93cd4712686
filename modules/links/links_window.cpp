#include "links/links_window.h"

#include "common/house.h"
#include "common/module_run.h"
#include "links/link_row.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace links {

namespace {

constexpr int kModule = 7;
constexpr QSize kSize(620, 640);
constexpr int kMargin = 24;
constexpr int kLeastHeight = 200; ///< of the page: some links at once

QLabel* label(const QString& text, int pixels, bool bold, QRgb ink) {
    auto* made = new QLabel(text);
    made->setTextFormat(Qt::PlainText);
    made->setStyleSheet(QStringLiteral("color: %1; font-size: %2px; font-weight: %3;")
                            .arg(QColor::fromRgb(ink).name())
                            .arg(pixels)
                            .arg(bold ? QStringLiteral("bold") : QStringLiteral("normal")));
    return made;
}

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
    widget->setObjectName(QStringLiteral("page"));
    widget->setStyleSheet(
        QStringLiteral("#page { background: %1; }").arg(QColor::fromRgb(common::kPaper).name()));
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(kMargin, 20, kMargin, kMargin);
    layout->setSpacing(0);
    layout->addWidget(label(QStringLiteral("Liens utiles"), common::kTitlePx, true, common::kInk));
    layout->addSpacing(4);
    layout->addWidget(label(QStringLiteral("Chaque adresse s’ouvre dans votre navigateur."),
                            common::kTextPx, false, common::kMuted));
    for (const LinkGroup& group : groups) {
        layout->addSpacing(18);
        layout->addWidget(label(group.title, 16, true, common::kInk));
        layout->addSpacing(4);
        for (const Link& link : group.links) {
            auto* row = new LinkRow(link);
            connect(row, &LinkRow::pointedAt, this, [this, row] {
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
    auto* widget = new QWidget;
    widget->setObjectName(QStringLiteral("foot"));
    widget->setStyleSheet(QStringLiteral("#foot { border-top: 1px solid %1; }")
                              .arg(QColor::fromRgb(common::kRule).name()));
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins(kMargin, 8, kMargin, 8);
    line_ = label({}, common::kTextPx, false, common::kInk);
    line_->setMinimumHeight(34);
    line_->setWordWrap(true);
    copy_ = new QPushButton(QStringLiteral("Copier l’adresse"));
    copy_->hide();
    connect(copy_, &QPushButton::clicked, this, &LinksWindow::copy);
    layout->addWidget(line_, 1);
    layout->addWidget(copy_);
    layout->addWidget(label(edition, common::kSmallPx, false, common::kMuted));
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
}

void LinksWindow::copy() {
    QGuiApplication::clipboard()->setText(failed_.toString());
    line_->setText(QStringLiteral("Adresse copiée\u00A0: %1").arg(failed_.toString()));
    failed_.clear();
    copy_->hide();
}

} // namespace links
