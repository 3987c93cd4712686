#pragma once

#include <QString>
#include <QStringView>

namespace page {

/// Holds the source of a page or question, with a selection that readers use as their cursor.
/// Positions count UTF-16 units from 0.
class RichTextHolder {
public:
    const QString& text() const { return text_; }

    /// Replaces the text; the selection is empty at its start.
    void setText(QString text) {
        text_ = std::move(text);
        start_ = 0;
        length_ = 0;
    }

    /// Position of `what` at or after `from` and ending at or before `to`; -1 if it is not there.
    qsizetype find(QStringView what, qsizetype from, qsizetype to) const {
        const qsizetype found = text_.indexOf(what, from);
        return found >= 0 && found + what.size() <= to ? found : -1;
    }

    qsizetype selectionStart() const { return start_; }

    /// Moves the start; the selection is empty there. Held inside the text.
    void setSelectionStart(qsizetype start) {
        start_ = qBound(qsizetype(0), start, text_.size());
        length_ = 0;
    }

    void setSelectionLength(qsizetype length) {
        length_ = qBound(qsizetype(0), length, text_.size() - start_);
    }

    /// Valid until the text changes.
    QStringView selectedText() const { return QStringView(text_).mid(start_, length_); }

private:
    QString text_;
    qsizetype start_ = 0;
    qsizetype length_ = 0;
};

} // namespace page
