#pragma once

#include "platform/processes.h"
#include "setupinfo/installation.h"

#include <QDialog>

namespace look {
class Button;
class SpacedLabel;
} // namespace look

namespace setupinfo {

/// `maj2001`: describes the installation and starts the separate programs that install or update
/// it. It stays open beside them, and says nothing when one does not start: that is for `starter`.
class Maj2001 : public QDialog {
public:
    /// `installDir` ends with a separator; the two programs are looked for there. `starter` must
    /// outlive the dialog.
    Maj2001(const Installation& installation, const QString& installDir,
            platform::ProcessStarter& starter, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Form_Load(const Installation& installation);
    void Form_Paint(QPainter& painter) const;
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    look::Button* addButton(const QString& name, const QString& caption, bool isMain,
                            const QRect& place);

    QString installDir_;
    platform::ProcessStarter& starter_;
    look::SpacedLabel* Label1_ = nullptr;
};

} // namespace setupinfo
