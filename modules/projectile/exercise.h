#pragma once

#include "common/task.h"
#include "projectile/launch.h"

#include <QPointF>
#include <QString>

#include <optional>
#include <set>
#include <vector>

namespace projectile {

/// A mark in the drawing: a ring, a wall, a line on the ground.
struct Landmark {
    QPointF place; ///< m
    QString name;
};

/// A task in a situation of which some numbers may be changed and others not.
struct Exercise : common::Task {
    Launch launch;
    std::set<Parameter> locked;
    bool dragLocked = false;
    std::vector<Landmark> landmarks;

    bool isLocked(Parameter parameter) const { return locked.count(parameter) > 0; }
};

/// Reads a file of modules/README.md's format. Absent, with one French sentence in `why`, when it
/// is not there, or anything in it is missing, unknown or out of range.
std::optional<Exercise> readExercise(const QString& path, QString& why);

/// The same of a file's text.
std::optional<Exercise> parseExercise(const QString& text, QString& why);

} // namespace projectile
