#pragma once

#include "check/rule.h"

namespace check {

// Pictures, videos and symbols that pages and questions name.

void missingPicture(const Course& course, Findings& findings);
void missingVideo(const Course& course, Findings& findings);
void fileNameInOtherCase(const Course& course, Findings& findings);
void unknownSymbol(const Course& course, Findings& findings);
void unreadablePicture(const Course& course, Findings& findings);
void drawingWithoutWords(const Course& course, Findings& findings);
void pictureWithoutWords(const Course& course, Findings& findings);

} // namespace check
