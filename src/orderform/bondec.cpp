#include "orderform/bondec.h"

#include "look/button.h"
#include "look/enter_once.h"
#include "look/ink.h"
#include "look/mnemonics.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "orderform/field_note.h"
#include "orderform/order_field.h"
#include "orderform/price.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

namespace orderform {

namespace {

// Pixels.
constexpr QSize kSize(560, 552);
constexpr int kMargin = 24;
constexpr int kRight = 536;
constexpr int kFieldLeft = 144;
constexpr int kFieldHeight = 32;
constexpr int kNoteHeight = 16;
constexpr int kNoteLeft = 240;
constexpr int kAmountWidth = 96;
constexpr int kAmountHeight = 20;

// Rules, and the rows of the lower part.
constexpr int kHeadingRule = 83;
constexpr int kOrderRule = 367;
constexpr int kQuantityTop = 384;
constexpr int kPostageTop = 422;
constexpr int kTotalTop = 446;
constexpr int kButtonRule = 479;
constexpr int kButtonTop = 496;
constexpr int kButtonWidth = 112;

constexpr int kTotalPx = 16;

struct Row {
    Field field;
    const char* caption; ///< with its mnemonic; null for the line that goes on from the one before
    QRect label;
    QRect place;
};

constexpr QRect wide(int top) {
    return {kFieldLeft, top, kRight - kFieldLeft, kFieldHeight};
}
constexpr QRect narrow(int top) {
    return {kFieldLeft, top, 88, kFieldHeight};
}
constexpr QRect before(int top) {
    return {kMargin, top, kFieldLeft - kMargin - 8, kFieldHeight};
}

constexpr std::array<Row, kFieldCount> kRows{{
    {Field::Surname, "&Nom", before(104), wide(104)},
    {Field::FirstName, "&Prénom", before(144), wide(144)},
    {Field::Address, "&Adresse", before(184), wide(184)},
    {Field::AddressMore, nullptr, {}, wide(224)},
    {Field::Postcode, "&Code postal", before(264), narrow(264)},
    {Field::Town, "&Ville", {256, 264, 40, kFieldHeight}, {304, 264, 232, kFieldHeight}},
    {Field::Country, "Pa&ys", before(320), wide(320)},
    {Field::Quantity, "&Quantité", before(kQuantityTop), narrow(kQuantityTop)},
}};

} // namespace

Bondec::Bondec(const PrintingParts& printing, platform::MessageBoxes& messageBoxes, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint),
      printing_(printing), messageBoxes_(messageBoxes) {
    setObjectName(QStringLiteral("bondec"));
    setWindowTitle(QStringLiteral("Bon de commande"));
    setFixedSize(kSize);
    look::setInk(*this, look::kInk);
    addHeading();
    addFields();
    addNotes();
    addAmounts();
    addButtons();
    showAmounts();
    sayPrinted(false);
    new look::MnemonicDisplay(this);
    new look::EnterOnce(this);
    field(Field::Surname).setFocus();
}

QLabel* Bondec::addLabel(const QString& text, const QRect& place) {
    auto* label = new QLabel(text, this);
    label->setTextFormat(Qt::PlainText);
    label->setFont(look::interfaceFont(look::kLabelPx));
    label->setGeometry(place);
    return label;
}

void Bondec::addHeading() {
    QLabel* title = addLabel(windowTitle(), {kMargin, 22, kRight - kMargin, 24});
    title->setFont(look::interfaceFont(look::kTitlePx, look::Weight::Bold));
    QLabel* advice = addLabel(
        QStringLiteral("Remplissez ce bon, imprimez-le et envoyez-le par courrier à KAROPE."),
        {kMargin, 52, kRight - kMargin, 20});
    look::setInk(*advice, look::kMuted);
}

void Bondec::addFields() {
    const Order blank = newOrder();
    for (const Row& row : kRows) {
        auto* added = new OrderField(this);
        added->setObjectName(fieldName(row.field));
        added->setAccessibleName(fieldName(row.field));
        added->setGeometry(row.place);
        added->setText(blank[row.field]);
        connect(added, &QLineEdit::textChanged, this, [this] { textChanged(); });
        fields_[static_cast<std::size_t>(row.field)] = added;
        if (row.caption)
            addLabel(QString::fromUtf8(row.caption), row.label)->setBuddy(added);
    }
    field(Field::AddressMore)
        .setPlaceholderText(QStringLiteral("bâtiment, étage, lieu-dit (facultatif)"));
}

void Bondec::addNotes() {
    const auto add = [this](const QRect& place) {
        auto* note = new FieldNote(this);
        note->setGeometry(place);
        return note;
    };
    const int belowPostcode = field(Field::Postcode).geometry().bottom() + 1;
    field(Field::Postcode)
        .setNoteBeside(add({kFieldLeft, belowPostcode + 2, kRight - kFieldLeft, kNoteHeight}),
                       QStringLiteral("cinq chiffres pour la France"));
    field(Field::Quantity)
        .setNoteBeside(add({kNoteLeft, kQuantityTop + (kFieldHeight - kNoteHeight) / 2,
                            kRight - kAmountWidth - kNoteLeft, kNoteHeight}),
                       QStringLiteral("cédérom Orvalente, %1 l’un").arg(euros(kUnitPrice)));
    state_ = add({kMargin, kButtonTop + (kFieldHeight - kNoteHeight) / 2,
                  kRight - 2 * kButtonWidth - 16 - kMargin, kNoteHeight});
}

QLabel* Bondec::addAmount(int top) {
    QLabel* amount = addLabel({}, {kRight - kAmountWidth, top, kAmountWidth, kAmountHeight});
    amount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return amount;
}

void Bondec::addAmounts() {
    const auto caption = [this](const QString& text, int top) {
        return addLabel(text, {kMargin, top, kFieldLeft, kAmountHeight});
    };
    amount_ = addAmount(kQuantityTop + (kFieldHeight - kAmountHeight) / 2);
    caption(QStringLiteral("Frais de port"), kPostageTop);
    addAmount(kPostageTop)->setText(euros(kPostage));
    QLabel* total = caption(QStringLiteral("Total"), kTotalTop);
    total->setFont(look::interfaceFont(look::kLabelPx, look::Weight::Bold));
    total_ = addAmount(kTotalTop);
    total_->setObjectName(QStringLiteral("total"));
    total_->setFont(look::interfaceFont(kTotalPx, look::Weight::Bold));
}

void Bondec::addButtons() {
    cancel_ = new look::Button(QStringLiteral("Annu&ler"), {}, this);
    auto* printing =
        new look::Button(QStringLiteral("&Imprimer"),
                         {.kind = look::Button::Kind::Main, .icon = QStringLiteral("print")}, this);
    printing->setObjectName(QStringLiteral("print"));
    cancel_->setGeometry(kRight - 2 * kButtonWidth - 8, kButtonTop, kButtonWidth, kFieldHeight);
    printing->setGeometry(kRight - kButtonWidth, kButtonTop, kButtonWidth, kFieldHeight);
    printing->setDefault(true);
    connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
    connect(printing, &QPushButton::clicked, this, [this] { print(); });
}

Order Bondec::order() const {
    Order order;
    for (const Field each : kFields)
        order[each] = field(each).text();
    return order;
}

void Bondec::textChanged() {
    sayPrinted(false);
    showAmounts();
    if (checks_)
        showFaults(tidied(order()));
}

void Bondec::showFaults(const Order& order) {
    for (const Field each : kFields)
        field(each).setFault(faultOf(order, each));
}

void Bondec::showAmounts() {
    const std::optional<int> number = copies(tidied(order()));
    amount_->setText(number ? euros(copiesAmount(*number)) : QStringLiteral("—"));
    total_->setText(number ? euros(totalAmount(*number)) : QStringLiteral("—"));
}

void Bondec::print() {
    const Order asked = tidied(order());
    for (const Field each : kFields)
        field(each).setText(asked[each]);
    checks_ = true;
    showFaults(asked);
    if (const auto faulty = faultyFields(asked); !faulty.empty()) {
        field(faulty.front()).setFocus();
        field(faulty.front()).selectAll();
        return;
    }
    switch (printOrder(asked, printing_)) {
    case PrintOutcome::Printed:
        sayPrinted(true);
        break;
    case PrintOutcome::Failed:
        messageBoxes_.ask(
            {windowTitle(),
             QStringLiteral("Le bon n’a pas été imprimé\u00A0: %1.").arg(printing_.printer.error()),
             platform::Message::Icon::Exclamation, platform::Message::Buttons::Ok});
        break;
    case PrintOutcome::Gone:
        reject();
        break;
    case PrintOutcome::Cancelled:
        break;
    }
}

void Bondec::sayPrinted(bool printed) {
    if (printed)
        state_->say(FieldNote::Kind::Done,
                    QStringLiteral("Bon prêt\u00A0: datez-le, signez-le, postez-le."));
    else
        state_->say(FieldNote::Kind::Hint,
                    QStringLiteral("Rien n’est enregistré ni envoyé par le logiciel."));
    cancel_->setCaption(printed ? QStringLiteral("&Fermer") : QStringLiteral("Annu&ler"));
}

void Bondec::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    for (std::size_t i = 0; isEnter && i + 1 < kFieldCount; ++i) {
        if (!fields_[i]->hasFocus())
            continue;
        fields_[i + 1]->setFocus(Qt::TabFocusReason);
        return;
    }
    QDialog::keyPressEvent(event);
}

void Bondec::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(look::kIvory));
    const double thickness = look::crisp(painter);
    for (const int y : {kHeadingRule, kOrderRule})
        painter.fillRect(QRectF(kMargin, y, kRight - kMargin, thickness),
                         QColor::fromRgb(look::kRule));
    painter.fillRect(QRectF(0, kButtonRule, width(), thickness), QColor::fromRgb(look::kRule));
}

} // namespace orderform
