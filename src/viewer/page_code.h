#pragma once

#include <QString>
#include <QStringView>

namespace viewer {

/// Code that shows the page with this fixed number: "PAG" and at least three digits. Only the last
/// three count when it runs, so that a number above 999 leads to another page.
QString pageCode(int number);

/// What a code asks for: its first three characters.
QStringView codePrefix(QStringView code);

/// The number in a code's last three characters; 0 when they start with none.
double codeArgument(QStringView code);

} // namespace viewer
