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

} // namespace markup
