#include "look/print_setup_dialog.h"

#include "look/button.h"
#include "look/dress.h"
#include "look/enter_once.h"
#include "look/mnemonics.h"
#include "look/no_settings.h"
#include "look/paper_controls.h"
#include "look/text_field.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QSpinBox>

namespace look {

namespace {

constexpr int kGrid = 8;
constexpr int kFieldHeight = 32;
constexpr int kFileWidth = 288;
constexpr int kButtonWidth = 96;

/// Margins in millimetres. The widest leave room on the smallest paper, lying.
constexpr int kLeastMargin = 5;
constexpr int kWidestMargin = 40;

/// As a person means a name: without an ending, it is a PDF file all the same.
QString fileNamed(const QString& typed) {
    const QString name = QDir::fromNativeSeparators(typed.trimmed());
    if (name.isEmpty() || name.endsWith(u'/') || QFileInfo(name).isDir())
        return name;
    const QString whole = QFileInfo(name).suffix().isEmpty() ? name + QStringLiteral(".pdf") : name;
    return QFileInfo(QDir::home(), whole).absoluteFilePath();
}

/// What is wrong with a file to be written; empty when nothing is.
QString faultOf(const QString& file) {
    const QFileInfo info(file);
    if (file.isEmpty())
        return QStringLiteral("Donnez un nom au fichier PDF.");
    if (info.isDir() || file.endsWith(u'/'))
        return QStringLiteral("C’est le nom d’un dossier\u00A0: ajoutez-y celui du fichier.");
    const QFileInfo directory(info.absolutePath());
    if (!directory.isDir())
        return QStringLiteral("Le dossier où écrire le fichier n’existe pas.");
    if (info.exists() ? !info.isWritable() : !directory.isWritable())
        return QStringLiteral("Le fichier ne peut pas être créé à cet endroit.");
    return {};
}

QHBoxLayout* newRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(kGrid);
    return row;
}

} // namespace

PrintSetupDialog::PrintSetupDialog(const PrintSettings& settings,
                                   platform::MessageBoxes& messageBoxes, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint),
      messageBoxes_(messageBoxes), rows_(new QGridLayout(this)), file_(new TextField(this)),
      paper_(new PaperControls(settings.layout, this)) {
    setWindowTitle(QStringLiteral("Imprimer"));
    rows_->setContentsMargins(2 * kGrid, 2 * kGrid, 2 * kGrid, 2 * kGrid);
    rows_->setHorizontalSpacing(2 * kGrid);
    rows_->setVerticalSpacing(kGrid);
    auto* notice = new QLabel(QStringLiteral("Aucune imprimante n’est installée\u00A0: les pages "
                                             "iront dans un fichier PDF."),
                              this);
    notice->setTextFormat(Qt::PlainText);
    rows_->addWidget(notice, 0, 0, 1, 2);
    rows_->setRowMinimumHeight(0, 3 * kGrid);
    addRow(QStringLiteral("&Fichier"), file_, fileRow(settings.file));
    auto* sizes = newRow();
    sizes->addWidget(&paper_->size());
    sizes->addStretch();
    addRow(QStringLiteral("&Papier"), &paper_->size(), sizes);
    addRow(QStringLiteral("Orientation"), nullptr, paper_->orientationRow());
    QLayout* margins = marginRow(settings.layout.margins(QPageLayout::Millimeter));
    addRow(QStringLiteral("Marges"), nullptr, margins);
    rows_->setRowMinimumHeight(rows_->rowCount(), kGrid);
    rows_->addLayout(buttonRow(), rows_->rowCount(), 0, 1, 2);
    rows_->setSizeConstraint(QLayout::SetFixedSize);
    dress(*this);
    new MnemonicDisplay(this);
    new EnterOnce(this);
    file_->setFocus();
}

/// `field` is what the caption's mnemonic leads to; null for rows of several.
void PrintSetupDialog::addRow(const QString& caption, QWidget* field, QLayout* row) {
    auto* label = new QLabel(caption, this);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(field);
    const int at = rows_->rowCount();
    rows_->addWidget(label, at, 0);
    rows_->addLayout(row, at, 1);
    rows_->setRowMinimumHeight(at, kFieldHeight);
}

QLayout* PrintSetupDialog::fileRow(const QString& file) {
    auto* row = newRow();
    file_->setObjectName(QStringLiteral("file"));
    file_->setText(QDir::toNativeSeparators(file));
    file_->setMinimumWidth(kFileWidth);
    file_->setFixedHeight(kFieldHeight);
    row->addWidget(file_);
    auto* browsing = new Button(QStringLiteral("Par&courir…"), {}, this);
    browsing->setFixedSize(kButtonWidth, kFieldHeight);
    browsing->setAutoDefault(false);
    connect(browsing, &QPushButton::clicked, this, &PrintSetupDialog::browse);
    setTabOrder(file_, browsing);
    row->addWidget(browsing);
    return row;
}

QLayout* PrintSetupDialog::marginRow(const QMarginsF& margins) {
    auto* row = newRow();
    const struct {
        QString caption;
        double millimetres;
    } edges[] = {{QStringLiteral("gauche"), margins.left()},
                 {QStringLiteral("haut"), margins.top()},
                 {QStringLiteral("droite"), margins.right()},
                 {QStringLiteral("bas"), margins.bottom()}};
    for (std::size_t i = 0; i < margins_.size(); ++i) {
        auto* label = new QLabel(edges[i].caption, this);
        label->setTextFormat(Qt::PlainText);
        margins_[i] = new QSpinBox(this);
        margins_[i]->setRange(kLeastMargin, kWidestMargin);
        margins_[i]->setSuffix(QStringLiteral(" mm"));
        margins_[i]->setValue(qRound(edges[i].millimetres));
        margins_[i]->setFixedHeight(kFieldHeight);
        label->setBuddy(margins_[i]);
        row->addWidget(label);
        row->addWidget(margins_[i]);
    }
    row->addStretch();
    return row;
}

QLayout* PrintSetupDialog::buttonRow() {
    auto* row = newRow();
    row->addStretch();
    auto* ok = new Button(QStringLiteral("OK"), {.kind = Button::Kind::Main, .icon = {}}, this);
    auto* cancel = new Button(QStringLiteral("&Annuler"), {}, this);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    for (Button* button : {ok, cancel}) {
        button->setFixedSize(kButtonWidth, kFieldHeight);
        row->addWidget(button);
    }
    return row;
}

PrintSettings PrintSetupDialog::settings() const {
    const QMarginsF margins(margins_[0]->value(), margins_[1]->value(), margins_[2]->value(),
                            margins_[3]->value());
    const QPageLayout plain(QPageSize(QPageSize::A4), QPageLayout::Portrait, margins,
                            QPageLayout::Millimeter);
    return {paper_->applied(plain), fileNamed(file_->text())};
}

void PrintSetupDialog::browse() {
    keepNoSettings();
    QFileDialog dialog(this, QStringLiteral("Fichier PDF"), {},
                       QStringLiteral("Fichiers PDF (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setViewMode(QFileDialog::List);
    // Whether a file is to be replaced is asked when all is confirmed. A desktop's own dialog would
    // keep the folders that were visited.
    dialog.setOptions(QFileDialog::DontConfirmOverwrite | QFileDialog::DontUseNativeDialog);
    const QFileInfo file(fileNamed(file_->text()));
    dialog.setDirectory(file.dir().exists() ? file.absolutePath() : QDir::homePath());
    dialog.selectFile(file.fileName());
    dress(dialog);
    const QString chosen =
        dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
    if (!chosen.isEmpty())
        file_->setText(QDir::toNativeSeparators(chosen));
}

void PrintSetupDialog::refuse(const QString& sentence) {
    messageBoxes_.ask({windowTitle(), sentence, platform::Message::Icon::Exclamation,
                       platform::Message::Buttons::Ok});
    file_->setFocus();
    file_->selectAll();
}

void PrintSetupDialog::accept() {
    const QString file = settings().file;
    if (const QString fault = faultOf(file); !fault.isEmpty()) {
        refuse(fault);
        return;
    }
    const platform::Message replacing{
        windowTitle(), QStringLiteral("Ce fichier existe déjà. Le remplacer\u00A0?"),
        platform::Message::Icon::Question, platform::Message::Buttons::YesNo};
    if (QFileInfo::exists(file) && messageBoxes_.ask(replacing) != platform::Answer::Yes)
        return;
    QDialog::accept();
}

} // namespace look
