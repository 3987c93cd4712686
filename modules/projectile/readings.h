#pragma once

#include "look/accessible_role.h"
#include "projectile/experiment.h"

#include <QWidget>

#include <vector>

namespace projectile {

/// Two lines of numbers: the moment shown, and the flight as a whole; four in a narrow window.
/// Those of the flight can be withheld, for an exercise that asks for them.
class Readings : public QWidget, public look::ToldInWords {
public:
    explicit Readings(Experiment& experiment, QWidget* parent = nullptr);

    void setFlightHidden(bool hidden);

    QString toldInWords() const override;

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    /// One number; `spoken` is what the formula that is its symbol is read as.
    struct Reading {
        const char16_t* symbol;
        const char16_t* spoken;
        double value;
        const char16_t* unit;
    };
    /// Readings with a name in common.
    struct Group {
        QString name;
        std::vector<Reading> readings;
        std::size_t perLine; ///< at most
        bool hidden;
    };

    std::vector<Group> groups() const;
    static QString valueOf(const Group& group, const Reading& reading);
    double paintGroup(QPainter& painter, double top, const Group& group) const;

    Experiment& experiment_;
    bool flightHidden_ = false;
};

} // namespace projectile
