#pragma once

#include <QString>
#include <QStringView>

namespace page {

/// The line with each accent as one character with its letter, where there is one: devices that
/// draw a character at a time would set it beside. The line itself when it needs no change,
/// otherwise a view of `buffer`.
QStringView composedText(QStringView line, QString& buffer);

/// Whether a character stands for a blank: line feeds, tabs and the like, which end no line of a
/// page.
bool showsABlank(char32_t character);

/// Whether a character shows nothing and takes no room: other control characters, byte order marks
/// and what else only programs read; faces draw boxes for them. A soft hyphen is a hyphen: pages
/// have no other line breaks than their own. In the sign faces, U+0080 to U+009F are signs.
bool showsNothing(char32_t character);

} // namespace page
