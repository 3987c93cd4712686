#include "exercises/strip_accessible.h"

#include "exercises/progress_strip.h"
#include "exercises/strip.h"

#include <QPointer>

#include <algorithm>

namespace exercises {

namespace {

/// More bands than this no strip shows: they would be thinner than a pixel.
constexpr int kMostBands = 200;

/// One band.
class BandAccessible : public QAccessibleInterface {
public:
    BandAccessible(Strip* strip, int question) : strip_(strip), question_(question) {}

    int question() const { return question_; }

    bool isValid() const override { return strip_ && question_ <= strip_->test().QuestionCount; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(strip_);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name || !isValid())
            return {};
        return strip_->nameOf(question_);
    }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override {
        if (!isValid())
            return {};
        const QRect band = strip_->bandRect(question_);
        return {strip_->mapToGlobal(band.topLeft()), band.size()};
    }
    QAccessible::Role role() const override { return QAccessible::ListItem; }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = state.selectable = true;
        const bool current = isValid() && question_ == strip_->test().CurrentQuestion;
        state.selected = current;
        state.focused = current && strip_->hasFocus();
        return state;
    }

private:
    QPointer<Strip> strip_;
    int question_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* strip = dynamic_cast<Strip*>(object);
    return strip ? new StripAccessible(strip) : nullptr;
}

} // namespace

StripAccessible::StripAccessible(Strip* strip) : QAccessibleWidget(strip, QAccessible::List) {}

StripAccessible::~StripAccessible() {
    for (const auto& [question, id] : bands_)
        QAccessible::deleteAccessibleInterface(id);
}

void StripAccessible::install() {
    QAccessible::installFactory(makeInterface); // known factories are not added again
}

Strip& StripAccessible::strip() const {
    return *static_cast<Strip*>(object());
}

int StripAccessible::childCount() const {
    return std::clamp<int>(strip().test().QuestionCount, 0, kMostBands);
}

QAccessibleInterface* StripAccessible::child(int index) const {
    if (index < 0 || index >= childCount())
        return nullptr;
    const auto [entry, isNew] = bands_.try_emplace(index + 1);
    if (isNew)
        entry->second =
            QAccessible::registerAccessibleInterface(new BandAccessible(&strip(), index + 1));
    return QAccessible::accessibleInterface(entry->second);
}

QAccessibleInterface* StripAccessible::childAt(int x, int y) const {
    const QPoint place = strip().mapFromGlobal(QPoint(x, y));
    const auto question = questionAt(place.y(), strip().test().QuestionCount, strip().height());
    return strip().rect().contains(place) && question ? child(*question - 1) : nullptr;
}

int StripAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto* band = dynamic_cast<const BandAccessible*>(child);
    return band ? band->question() - 1 : -1;
}

QAccessibleInterface* StripAccessible::focusChild() const {
    return strip().hasFocus() ? child(strip().test().CurrentQuestion - 1) : nullptr;
}

void StripAccessible::tellChange(Strip& strip) {
    if (!QAccessible::isActive())
        return;
    const auto* list = QAccessible::queryAccessibleInterface(&strip);
    if (QAccessibleInterface* current = list->child(strip.test().CurrentQuestion - 1)) {
        QAccessibleEvent changed(current, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&changed);
    }
    if (strip.hasFocus())
        tellFocus(strip);
}

void StripAccessible::tellFocus(Strip& strip) {
    if (!QAccessible::isActive())
        return;
    const auto* list = QAccessible::queryAccessibleInterface(&strip);
    if (QAccessibleInterface* current = list->child(strip.test().CurrentQuestion - 1)) {
        QAccessibleEvent focused(current, QAccessible::Focus);
        QAccessible::updateAccessibility(&focused);
    }
}

} // namespace exercises
