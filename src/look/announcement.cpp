#include "look/announcement.h"

#include "look/accessible_role.h"

#include <QTimer>
#include <QWidget>

#include <utility>

namespace look {

namespace {

const QString kName = QStringLiteral("announcement");

/// The toolkit has no event for this before Qt 6.8, and QAccessible::Alert is a sound on Windows
/// and nothing on Linux. What screen readers do say of themselves is a notification that comes up,
/// with the label in it: here one that takes no room and paints nothing.
class Announcement : public QWidget {
public:
    explicit Announcement(QWidget* window) : QWidget(window) {
        setAccessibleRole(*this, QAccessible::Notification);
        setObjectName(kName);
        label_ = new QWidget(this);
        setAccessibleRole(*label_, QAccessible::StaticText);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        label_->resize(1, 1);
        resize(1, 1);
        lower();
        hide();
    }

    void add(const QString& words) {
        if (words_.isEmpty())
            QTimer::singleShot(0, this, [this] { say(); });
        else
            words_ += words_.endsWith(u'.') ? QStringLiteral(" ") : QStringLiteral(". ");
        words_ += words;
    }

private:
    void say() {
        hide();
        const QString words = std::exchange(words_, {});
        setAccessibleName(words);
        label_->setAccessibleName(words);
        show(); // the toolkit tells of this
    }

    QWidget* label_;
    QString words_; ///< to be said
};

} // namespace

void announce(const QWidget& within, const QString& words) {
    QWidget* window = within.window();
    if (words.isEmpty() || !QAccessible::isActive() || !window->isVisible())
        return;
    auto* known = window->findChild<QWidget*>(kName, Qt::FindDirectChildrenOnly);
    static_cast<Announcement*>(known ? known : new Announcement(window))->add(words);
}

} // namespace look
