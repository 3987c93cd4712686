#pragma once

#include "format.h"

namespace fuzz {

extern const Format kDatabase;
extern const Format kDatabaseEdit;
extern const Format kInstalledCourse;
extern const Format kPicture;
extern const Format kCourseSource;
extern const Format kPageSource;
extern const Format kQuestion;
extern const Format kMarkdown;
extern const Format kFilm;
extern const Format kStatusFile;
extern const Format kDescriptions;
extern const Format kCalculation;
extern const Format kTypedWords;
extern const Format kOrder;

} // namespace fuzz
