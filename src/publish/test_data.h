#pragma once

#include "exercises/database_records.h"
#include "markup/picture_source.h"
#include "publish/drawing_writer.h"
#include "publish/site_links.h"

#include <QJsonObject>

namespace publish {

/// What drawing a question works with.
struct QuestionTools {
    const page::TextMetrics& metrics;
    markup::PictureSource& pictures;
    const page::FieldPictures& fields;
    const SiteLinks& links;
    DrawingWriter& drawings;
};

/// The test of a chapter as its script hands it over: "chapitre", "titre", "nombre" and
/// "questions", each with its "type", "solution" (null when it has none), and what is shown
/// "seule" and with its "commentaire": the drawing, its text and its controls, those of choices
/// with the end of their words, "fin". Nothing when there is no such test.
std::optional<QJsonObject> testData(exercises::DatabaseRecords& records, std::int16_t chapter,
                                    const QuestionTools& tools);

} // namespace publish
