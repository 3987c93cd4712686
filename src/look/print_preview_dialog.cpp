#include "look/print_preview_dialog.h"

#include "look/button.h"
#include "look/dress.h"
#include "look/enter_once.h"
#include "look/interface_font.h"
#include "look/mnemonics.h"
#include "look/option_button.h"
#include "look/paper_controls.h"
#include "look/program_icon.h"
#include "look/sheet_view.h"
#include "look/tool_tip.h"

#include <QAccessible>
#include <QButtonGroup>
#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>

namespace look {

namespace {

constexpr int kGrid = 8;
constexpr int kControlsWidth = 216;
constexpr int kField = 32;
constexpr int kButtonWidth = 112;
constexpr int kSheetsSide = 440; ///< leaves room for a frame on a screen of 600 rows

QString destination(const platform::PrintTarget& target) {
    return target.file.isEmpty() ? target.printer : QFileInfo(target.file).fileName();
}

} // namespace

PrintPreviewDialog::PrintPreviewDialog(const Parts& parts, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint),
      parts_(parts), walk_(parts.proposal, parts.setLayout(parts.layout)),
      paper_(new PaperControls(parts.layout, this)), view_(new SheetView(parts.fonts, this)),
      words_(new QLabel(this)) {
    setObjectName(QStringLiteral("apercu"));
    setWindowTitle(QStringLiteral("Aperçu avant impression"));
    setWindowIcon(programIcon());
    auto* all = new QHBoxLayout(this);
    all->setContentsMargins(2 * kGrid, 2 * kGrid, 2 * kGrid, 2 * kGrid);
    all->setSpacing(2 * kGrid);
    auto* left = newControls();
    left->addStretch();
    left->addLayout(newButtons());
    all->addLayout(left);
    all->addLayout(newSheets());
    all->setSizeConstraint(QLayout::SetFixedSize);
    paper_->onChange([this] {
        walk_.setPaper(parts_.setLayout(paper_->applied(parts_.layout)));
        showSheet();
    });
    dress(*this);
    new MnemonicDisplay(this);
    new EnterOnce(this);
    showSheet();
}

void PrintPreviewDialog::addHeading(QBoxLayout& column, const QString& words) {
    auto* label = new QLabel(words, this);
    label->setTextFormat(Qt::PlainText);
    label->setFont(interfaceFont(kLabelPx, Weight::Bold));
    label->setFixedWidth(kControlsWidth);
    column.addWidget(label);
}

QBoxLayout* PrintPreviewDialog::newControls() {
    auto* column = new QVBoxLayout;
    column->setSpacing(kGrid);
    addHeading(*column, QStringLiteral("Pages"));
    auto* choices = new QButtonGroup(this);
    const QStringList captions = parts_.proposal.choices();
    for (int i = 0; i < captions.size(); ++i) {
        auto* option = new OptionButton(captions[i], this);
        choices->addButton(option, i); // before it is chosen: there are other options beside
        option->setChecked(i == 0);
        column->addWidget(option);
    }
    connect(choices, &QButtonGroup::idToggled, this, [this](int choice, bool chosen) {
        if (!chosen)
            return;
        walk_.choose(choice);
        showSheet();
    });
    column->addSpacing(kGrid);
    addHeading(*column, QStringLiteral("Papier"));
    paper_->size().setAccessibleName(QStringLiteral("Papier"));
    column->addWidget(&paper_->size());
    column->addLayout(paper_->orientationRow());
    if (const QString name = destination(parts_.target); !name.isEmpty()) {
        column->addSpacing(kGrid);
        addHeading(*column, parts_.target.file.isEmpty() ? QStringLiteral("Imprimante")
                                                         : QStringLiteral("Fichier PDF"));
        auto* label = new QLabel(this);
        label->setTextFormat(Qt::PlainText);
        label->setText(label->fontMetrics().elidedText(name, Qt::ElideMiddle, kControlsWidth));
        look::setToolTip(*label, parts_.target.file.isEmpty() ? name : parts_.target.file);
        column->addWidget(label);
    }
    return column;
}

QBoxLayout* PrintPreviewDialog::newButtons() {
    auto* row = new QHBoxLayout;
    row->setSpacing(kGrid);
    auto* print =
        new Button(QStringLiteral("&Imprimer"), {.kind = Button::Kind::Main, .icon = {}}, this);
    auto* cancel = new Button(QStringLiteral("&Annuler"), {.icon = {}}, this);
    print->setDefault(true);
    print->setFocus();
    connect(print, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    for (Button* button : {print, cancel}) {
        button->setFixedSize((kControlsWidth - kGrid) / 2, kField);
        row->addWidget(button);
    }
    return row;
}

QBoxLayout* PrintPreviewDialog::newSheets() {
    auto* column = new QVBoxLayout;
    column->setSpacing(kGrid);
    view_->setFixedSize(kSheetsSide, kSheetsSide);
    view_->onStep([this](int by) { step(by); });
    column->addWidget(view_);
    auto* row = new QHBoxLayout;
    const auto newStep = [this](const QString& icon, const QString& words, int by) {
        auto* button = new Button({}, {.icon = icon}, this);
        button->setAccessibleName(words);
        button->setAutoDefault(false);
        look::setToolTip(*button, words);
        button->setFixedSize(kButtonWidth / 2, kField);
        connect(button, &QPushButton::clicked, this, [this, by] { step(by); });
        return button;
    };
    previous_ = newStep(QStringLiteral("previous-page"), QStringLiteral("Feuille précédente"), -1);
    next_ = newStep(QStringLiteral("next-page"), QStringLiteral("Feuille suivante"), 1);
    words_->setObjectName(QStringLiteral("place"));
    words_->setTextFormat(Qt::PlainText);
    words_->setAlignment(Qt::AlignCenter);
    row->addWidget(previous_);
    row->addWidget(words_, 1);
    row->addWidget(next_);
    column->addLayout(row);
    return column;
}

void PrintPreviewDialog::step(int by) {
    if (by > 0 ? !walk_.hasNext() : !walk_.hasPrevious())
        return;
    by > 0 ? walk_.next() : walk_.previous();
    showSheet();
}

void PrintPreviewDialog::showSheet() {
    view_->show(walk_.sheet());
    view_->setAccessibleDescription(walk_.sheet().title + QStringLiteral(", ") + walk_.words());
    words_->setText(walk_.words());
    previous_->setEnabled(walk_.hasPrevious());
    next_->setEnabled(walk_.hasNext());
    QAccessibleEvent told(words_, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&told);
}

void PrintPreviewDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_PageDown)
        step(1);
    else if (event->key() == Qt::Key_PageUp)
        step(-1);
    else
        QDialog::keyPressEvent(event);
}

} // namespace look
