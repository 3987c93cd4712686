#pragma once

#include "platform/message_box.h"

#include <QDialog>
#include <QPageLayout>

#include <array>

class QGridLayout;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace look {

class PaperControls;

/// What can be set up where pages are printed into a PDF file.
struct PrintSettings {
    QPageLayout layout;
    QString file;
};

/// Size and orientation of the paper, margins, and the file. It confirms only a file that can be
/// written, and one that is there already after a question.
class PrintSetupDialog : public QDialog {
public:
    /// `messageBoxes` must outlive the dialog.
    PrintSetupDialog(const PrintSettings& settings, platform::MessageBoxes& messageBoxes,
                     QWidget* parent);

    /// As the controls have it.
    PrintSettings settings() const;

    void accept() override;

private:
    void addRow(const QString& caption, QWidget* field, QLayout* row);
    QLayout* fileRow(const QString& file);
    QLayout* marginRow(const QMarginsF& margins);
    QLayout* buttonRow();
    void browse();
    void refuse(const QString& sentence);

    platform::MessageBoxes& messageBoxes_;
    QGridLayout* rows_;
    QLineEdit* file_;
    PaperControls* paper_;
    std::array<QSpinBox*, 4> margins_{}; ///< left, top, right, bottom; millimetres
};

} // namespace look
