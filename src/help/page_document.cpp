#include "help/page_document.h"

#include "look/icon.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "platform/file_names.h"

#include <QFile>
#include <QPainter>
#include <QUrl>

namespace help {

namespace {

constexpr double kTextPx = 14;
constexpr double kIconPx = 20;
constexpr double kCaptureRatio = 2; ///< at which the pictures of windows are taken

constexpr double kPaperRatio = 3; ///< of pictures on paper

QPixmap drawing(const QString& name, double ratio) {
    if (!QFile::exists(look::Icon::fileOf(name)))
        return {};
    QPixmap picture(QSize(1, 1) * qRound(kIconPx * ratio));
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    look::Icon(name).paint(painter, {0, 0, kIconPx, kIconPx}, look::Icon::Style::Coloured);
    return picture;
}

QPixmap capture(const QString& file, double ratio) {
    QImage picture(file);
    if (picture.isNull())
        return {};
    // Smoothly made smaller here; what the text would do by itself drops pixels.
    if (ratio < kCaptureRatio) {
        picture = picture.scaledToWidth(qRound(picture.width() * ratio / kCaptureRatio),
                                        Qt::SmoothTransformation);
        picture.setDevicePixelRatio(ratio);
    } else {
        picture.setDevicePixelRatio(kCaptureRatio);
    }
    return QPixmap::fromImage(picture);
}

} // namespace

QString pageStyle(double zoom) {
    const auto px = [zoom](double pixels) { return QString::number(qRound(pixels * zoom)); };
    const auto colour = [](QRgb rgb) { return QColor::fromRgb(rgb).name(); };
    using namespace look;
    return QStringLiteral(
               "body, p, li, td, th, h1, h2 { font-family: 'Liberation Sans'; font-size: %1px;"
               " color: %4; }"
               "p, ul, ol { margin-top: 0px; margin-bottom: 9px; }"
               "p, li { line-height: 130%; }"
               "li { margin-bottom: 4px; }"
               "h1 { font-size: %2px; color: %4; margin-top: 0px; margin-bottom: 12px; }"
               "h2 { font-size: %3px; color: %4; margin-top: 16px; margin-bottom: 6px; }"
               "th { text-align: left; background-color: %8; }"
               "b.bouton { color: %5; }"
               "code { font-family: 'Liberation Sans'; background-color: %8; }"
               "p.commande { line-height: 150%; margin-bottom: 4px; }"
               "p.conseil { background-color: %7; margin-top: 10px; margin-bottom: 12px; }"
               "p.image { line-height: 100%; margin-top: 4px; margin-bottom: 14px; }"
               "img { vertical-align: middle; }"
               "table { border-collapse: collapse; border-style: solid; border-color: %10;"
               " margin-top: 8px; margin-bottom: 10px; }"
               "td { vertical-align: middle; }"
               "p.legende { color: %6; font-size: %9px; }"
               "a { color: %5; }")
        .arg(px(kTextPx), px(kTitlePx + 3), px(kTextPx + 2), colour(kInk), colour(kBlue),
             colour(kMuted), colour(kHoverTint), colour(kScrollTrack), px(kButtonPx),
             colour(kRule));
}

QPixmap pagePicture(const QString& folder, const QString& name, double ratio) {
    const QString file = platform::lastComponent(name);
    if (name.contains(QStringLiteral("icone/")))
        return drawing(file, ratio);
    if (name.contains(QStringLiteral("captures/")))
        return capture(folder + QStringLiteral("/captures/") + file, ratio);
    return {};
}

PageDocument::PageDocument(const HelpBook& book, const HelpPage& page) : book_(book) {
    setDefaultStyleSheet(pageStyle());
    setHtml(page.html);
}

QVariant PageDocument::loadResource(int type, const QUrl& name) {
    if (type != ImageResource)
        return {};
    return pagePicture(book_.folder(), name.path(), kPaperRatio);
}

} // namespace help
