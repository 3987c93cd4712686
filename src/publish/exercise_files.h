#pragma once

#include <QJsonObject>
#include <QString>

#include <map>

namespace publish {

/// What the site has of the simulations' exercises, by the numbers of their modules: "exercices",
/// the files of the course's folder in the order of their names, each with "nom" and "texte"; and
/// "codes", which of them the last digit of a launch code means. A module is there when a launch
/// code names an exercise of it, whether that is in the folder or not.
std::map<int, QJsonObject> exercisesOfCourse(const QString& course);

} // namespace publish
