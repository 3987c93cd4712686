#pragma once

#include <QStringList>
#include <QWidget>

namespace look {

class ReadingText;

/// Paper with a few words on it in the place of something that cannot be shown: what is wrong, why,
/// and what to do. The words are plain texts; whoever listens to the screen hears them at once.
class Notice : public QWidget {
public:
    explicit Notice(QWidget* parent);

    void tell(const QString& title, const QStringList& paragraphs);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    ReadingText* text_;
};

} // namespace look
