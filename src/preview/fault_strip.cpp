#include "preview/fault_strip.h"

#include "coursetool/paths.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/tool_tip.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>

namespace preview {

namespace {

constexpr int kLineHeight = 24;
constexpr int kMargin = 8;
constexpr QRgb kGround = 0xfffdf0ee; ///< kRed has 5.8 on it, kInk 14.4

/// A line that can be clicked, or pressed with the keyboard, when it has a place.
class Line : public QAbstractButton {
public:
    Line(QString place, QString words, QRgb ink, QWidget* parent)
        : QAbstractButton(parent), place_(std::move(place)), words_(std::move(words)), ink_(ink) {
        if (place_.isEmpty()) {
            setAccessibleName(words_);
            setFocusPolicy(Qt::NoFocus);
            return;
        }
        setCursor(Qt::PointingHandCursor);
        setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard to the page
        setAccessibleName(place_ + QStringLiteral(" : ") + words_);
        look::setToolTip(*this, words_ + QStringLiteral("\nUn clic copie l’endroit."));
        connect(this, &QAbstractButton::clicked, this,
                [this] { QGuiApplication::clipboard()->setText(place_); });
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        if (!place_.isEmpty() && (underMouse() || hasFocus()))
            painter.fillRect(rect(), QColor::fromRgb(look::kPressedTint));
        const QRect text = rect().adjusted(kMargin, 0, -kMargin, 0);
        painter.setFont(look::interfaceFont(look::kLabelPx, look::Weight::Bold));
        painter.setPen(QColor::fromRgb(ink_));
        // Of a long place the end counts, which has the line.
        const QString place =
            painter.fontMetrics().elidedText(place_, Qt::ElideLeft, text.width() / 2);
        painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft, place);
        const int left =
            place.isEmpty() ? 0 : painter.fontMetrics().horizontalAdvance(place) + kMargin;
        painter.setFont(look::interfaceFont(look::kLabelPx));
        painter.setPen(QColor::fromRgb(look::kInk));
        const QRect rest = text.adjusted(left, 0, 0, 0);
        painter.drawText(rest, Qt::AlignVCenter | Qt::AlignLeft,
                         painter.fontMetrics().elidedText(words_, Qt::ElideRight, rest.width()));
    }
    void enterEvent(QEnterEvent*) override { update(); }
    void leaveEvent(QEvent*) override { update(); }

private:
    QString place_;
    QString words_;
    QRgb ink_;
};

/// "pages/2.md:5:7": what editors jump to.
QString placeText(const coursetool::Place& place, const std::filesystem::path& sources) {
    const std::filesystem::path file = coursetool::pathFrom(place.file);
    const std::filesystem::path inside = file.lexically_relative(sources);
    const bool leadsOut = inside.empty() || *inside.begin() == "..";
    QString text = QString::fromStdString(coursetool::shown(leadsOut ? file : inside));
    for (const int number : {place.line, place.column})
        if (number > 0)
            text += u':' + QString::number(number);
    return text;
}

} // namespace

FaultStrip::FaultStrip(const QRect& foot, QWidget* parent) : QWidget(parent), foot_(foot) {
    setObjectName(QStringLiteral("faultStrip"));
    setAccessibleName(QStringLiteral("Fautes du cours"));
    setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor::fromRgb(kGround));
    setPalette(colours);
    hide();
}

void FaultStrip::clear() {
    for (QWidget* line : lines_) {
        line->hide();
        line->deleteLater(); // it may be the one that is being clicked
    }
    lines_.clear();
}

void FaultStrip::addLine(const QString& place, const QString& words, QRgb ink) {
    auto* line = new Line(place, words, ink, this);
    line->setGeometry(0, static_cast<int>(lines_.size()) * kLineHeight, foot_.width(), kLineHeight);
    line->show();
    lines_.push_back(line);
}

void FaultStrip::show(const std::vector<coursetool::Remark>& remarks,
                      const std::filesystem::path& sources) {
    clear();
    using Kind = coursetool::Remark::Kind;
    const std::size_t told = remarks.size() > kMostLines ? kMostLines - 1 : remarks.size();
    // Warnings last: faults keep the course from being shown.
    for (const bool warnings : {false, true})
        for (const coursetool::Remark& remark : remarks)
            if ((remark.kind == Kind::Warning) == warnings && lines_.size() < told)
                addLine(placeText(remark.place, sources), QString::fromStdString(remark.sentence),
                        warnings ? look::kMuted : look::kRed);
    if (told < remarks.size())
        addLine(
            {},
            QStringLiteral("et %1 autres\u00A0: «\u00A0orvalente-cours check\u00A0» les dit toutes")
                .arg(remarks.size() - told),
            look::kMuted);
    const int height = static_cast<int>(lines_.size()) * kLineHeight;
    setGeometry(foot_.left(), foot_.bottom() + 1 - height, foot_.width(), height);
    setVisible(!lines_.empty());
    raise();
}

} // namespace preview
