#pragma once

#include <QChar>
#include <QString>

namespace page {

// Pages write signs in two faces whose codes are no letters: "Symbol" (Greek and mathematics) and
// "Wingdings". The tables in data/ tell what each code shows.

enum class SignFace { None, Symbol, Wingdings };

/// Which of the two faces a name means, without regard to case.
SignFace signFace(const QString& face);

/// Code of a character as it stands in page text, 0 to 255; -1 when it is none. Windows-1252 text
/// was read as Unicode: "€" is code 0x80 again, and word processors' private characters
/// U+F020 to U+F0FF are codes too.
int signCode(QChar character);

/// Unicode character of a code; 0 for codes that show nothing.
char32_t signCharacter(SignFace face, int code);

/// The same as drawn by faces of our time: their two shapes of phi are the other way round.
char32_t drawnSignCharacter(SignFace face, int code);

/// Text of a sign face as readers of text want it: in Unicode, without the codes that show nothing.
/// Text of other faces stays as it is.
QString readableSigns(const QString& face, const QString& text);

} // namespace page
