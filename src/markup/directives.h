#pragma once

#include <QStringView>

namespace markup {

class Renderer;

// The handlers of the directive table, one source file a family. Each gets the directive without
// its leading "##" and changes only the drawing state and the surfaces.

// styling.cpp
void fontSize(Renderer& renderer, QStringView d);
void boldOn(Renderer& renderer, QStringView d);
void boldOff(Renderer& renderer, QStringView d);
void italicOn(Renderer& renderer, QStringView d);
void italicOff(Renderer& renderer, QStringView d);
void underlineOn(Renderer& renderer, QStringView d);
void underlineOff(Renderer& renderer, QStringView d);
void alignLeft(Renderer& renderer, QStringView d);
void alignCentre(Renderer& renderer, QStringView d);
void alignRight(Renderer& renderer, QStringView d);
void inkColour(Renderer& renderer, QStringView d);
void fontFace(Renderer& renderer, QStringView d);
void textShadow(Renderer& renderer, QStringView d);
void lineSpacing(Renderer& renderer, QStringView d);

// positioning.cpp
void centrePenFor(Renderer& renderer, QStringView d);
void setPenX(Renderer& renderer, QStringView d);
void movePenX(Renderer& renderer, QStringView d);
void movePenY(Renderer& renderer, QStringView d);
void skipLines(Renderer& renderer, QStringView d);
void shiftNextDownHalf(Renderer& renderer, QStringView d);
void shiftNextDownQuarter(Renderer& renderer, QStringView d);
void shiftNextUpHalf(Renderer& renderer, QStringView d);
void shiftNextUpQuarter(Renderer& renderer, QStringView d);
void movePenDownHalf(Renderer& renderer, QStringView d);
void movePenDownQuarter(Renderer& renderer, QStringView d);
void movePenUpHalf(Renderer& renderer, QStringView d);
void movePenUpQuarter(Renderer& renderer, QStringView d);

// surfaces.cpp
void refreshAndGrow(Renderer& renderer, QStringView d);
void chooseSurface(Renderer& renderer, QStringView d);
void windowCaption(Renderer& renderer, QStringView d);

// pictures.cpp
void symbolInLine(Renderer& renderer, QStringView d);
void pictureOverText(Renderer& renderer, QStringView d);
void pictureAboveText(Renderer& renderer, QStringView d);
void pictureOfGivenSize(Renderer& renderer, QStringView d);

// links.cpp
void firstCaptionLine(Renderer& renderer, QStringView d);
void textLink(Renderer& renderer, QStringView d);
void pictureLink(Renderer& renderer, QStringView d);
void pictureLinkWithTooltip(Renderer& renderer, QStringView d);
void floatingMenu(Renderer& renderer, QStringView d);
void menuEntry(Renderer& renderer, QStringView d);

// answer_fields.cpp
void optionField(Renderer& renderer, QStringView d);
void checkField(Renderer& renderer, QStringView d);
void textField(Renderer& renderer, QStringView d);
void questionLink(Renderer& renderer, QStringView d);
void questionVideo(Renderer& renderer, QStringView d);
void pageVideo(Renderer& renderer, QStringView d);

// signs.cpp

/// "IND", "EXP": text lowered or raised by 6 twips a point, two points smaller from 10 points on.
void printIndex(Renderer& renderer, QStringView d);
void printExponent(Renderer& renderer, QStringView d);
/// "POLY": two signs above each other behind a symbol.
void printStacked(Renderer& renderer, QStringView d);
/// "CHAPEAU": a hat at the pen, over the character that follows.
void printHat(Renderer& renderer, QStringView d);
void printPoint(Renderer& renderer, QStringView d);
void printArrow(Renderer& renderer, QStringView d);
/// "STAY": does nothing.
void stay(Renderer& renderer, QStringView d);

// line_signs.cpp

/// "SQD", "SQF": a square root around what is drawn between them. With w half the width of "X" and
/// the height h the factor of "SQF" times a line, the sign goes from mid-line at the start down to
/// h / 2 below it (w further right), up to h / 2 above it (w further), and over the radicand to the
/// pen. Factor 1 encloses a line of text, factor 2 a fraction; a factor that makes h exceed 16 bits
/// draws nothing.
void beginRoot(Renderer& renderer, QStringView d);
void endRoot(Renderer& renderer, QStringView d);
/// "VA1", "VA2", "VE1", "VE2": a bar or a vector arrow 30 ("1": letters) or 60 twips ("2": letters
/// with something over them) above the line, overhanging the text by a quarter of a blank on either
/// side. Barbs of the arrow go 60 twips back and 30 up and down.
void barLow(Renderer& renderer, QStringView d);
void barHigh(Renderer& renderer, QStringView d);
void vectorLow(Renderer& renderer, QStringView d);
void vectorHigh(Renderer& renderer, QStringView d);
/// "K001" to "K003" open and "K101" to "K103" close, as tall as a fraction: from half a line above
/// to half a line below. Lengths are heights of "W": brackets are 0.25 wide, braces 0.4 with bends
/// of 0.3, parentheses 0.2 with bends of 0.8; each has 0.1 of room on either side, and the pen
/// moves past it.
void openingBracket(Renderer& renderer, QStringView d);
void closingBracket(Renderer& renderer, QStringView d);
void openingBrace(Renderer& renderer, QStringView d);
void closingBrace(Renderer& renderer, QStringView d);
void openingParenthesis(Renderer& renderer, QStringView d);
void closingParenthesis(Renderer& renderer, QStringView d);
/// "K004", "K104": the double arrow of an equilibrium and the arrow of a reaction, both 1.6 heights
/// of "W" long (twice 0.8) with 0.2 of room on either side, on the axis of the line; the pen moves
/// past them.
void equilibriumArrow(Renderer& renderer, QStringView d);
void reactionArrow(Renderer& renderer, QStringView d);

// fractions.cpp

/// "FRAC": numerator and denominator of the directive, centred over each other.
void printFraction(Renderer& renderer, QStringView d);
/// "NUMERATEUR", "DENOMINATEUR", "FINFRAC": a fraction of what is drawn between them, both parts
/// from the left.
void beginNumerator(Renderer& renderer, QStringView d);
void beginDenominator(Renderer& renderer, QStringView d);
void endFraction(Renderer& renderer, QStringView d);

// table_rows.cpp

void topBorderColour(Renderer& renderer, QStringView d);
void bottomBorderColour(Renderer& renderer, QStringView d);
void leftBorderColour(Renderer& renderer, QStringView d);
void innerBorderColour(Renderer& renderer, QStringView d);
void rightBorderColour(Renderer& renderer, QStringView d);
/// "TAB": goes to the top of the row, into a column of its own.
void openCell(Renderer& renderer, QStringView d);
/// "FINTAB", "FTABRET": frame the row; the text goes on below it or from its top.
void closeRowWithBorders(Renderer& renderer, QStringView d);
void closeRowAndReturn(Renderer& renderer, QStringView d);
/// "FINITAB": draws nothing.
void closeRowWithoutBorders(Renderer& renderer, QStringView d);
/// "FINTAC": fills the row behind its text. Style 3 is a gradient of (255, 255, b) with b = 200 +
/// 55 x distance from the row's top / height, rounded, in bands of a pixel at least and 56 at most;
/// in a row without height, one pixel with b = 100. Paper gets the same fills as the screen.
void closeRowWithFill(Renderer& renderer, QStringView d);

// blocks.cpp

/// "DGFOND": tints the surface, over its whole width, from where the drawing starts; the tint fades
/// to white within 424 pixels, the height that the main window shows of a page. Styles: 1 green,
/// 2 cream, 3 yellow, 4 blue, 5 orange, 6 red; others do nothing. Text drawn before stays visible.
void backgroundGradient(Renderer& renderer, QStringView d);
/// "LARGEUR": width of the next frame in pixels, from the last three characters; 0 or less is the
/// whole column.
void frameWidth(Renderer& renderer, QStringView d);
/// "RECT": a frame with its top at the pen, as many pixels high as its last three characters say
/// (a rule when that is 0 or less), in the ink and line width of the surface. Without a width it
/// reaches from margin to margin; with one it stands at the pen, in the middle or at the right
/// margin, as texts do. The pen stays: what follows is drawn in the frame.
void drawFrame(Renderer& renderer, QStringView d);

} // namespace markup
