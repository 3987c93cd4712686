#include "search/extract.h"

#include "coursedata/course_directory.h"
#include "coursedata/jet_recordset.h"
#include "markup/draw_page.h"
#include "page/readable_text.h"
#include "search/extract_text.h"

namespace search {

namespace {

/// Words need no pictures.
class NoPictures : public markup::PictureSource {
public:
    QString locatePicture(const QString& name) override { return name; }
    std::shared_ptr<const page::Picture> load(const QString&) override { return nullptr; }
    std::shared_ptr<const page::Picture> symbol(const QString&) override { return nullptr; }
};

/// What can be read on a page: the page itself, then what stands around it.
QString textOf(const QString& source, const page::FontBook& fonts) {
    markup::DrawingState state;
    NoPictures pictures;
    const markup::DrawnPage drawn = markup::drawPage({source}, {state, pictures, fonts});
    QString text;
    for (const auto surface :
         {page::SurfaceId::PictureTexte, page::SurfaceId::Titre, page::SurfaceId::PictureIllus})
        text += page::readableText(drawn.recording, surface) + u'\n';
    return text;
}

} // namespace

QString Extract::html(int position, const Query& query) {
    if (!cours_) {
        const auto file = coursedata::findCourseDatabase(installDir_);
        auto opened = coursedata::openRecordset(file.value_or(QString()), QStringLiteral("cours"));
        if (!opened)
            return {};
        cours_ = std::move(*opened);
    }
    const bool isThere = cours_->setAbsolutePosition(position);
    const auto field = isThere ? cours_->field(QStringLiteral("fpc")) : std::nullopt;
    const QString* const source = field ? std::get_if<QString>(&*field) : nullptr;
    if (!field) // what could not be read may be there again the next time
        cours_.reset();
    return source ? extractHtml(textOf(*source, fonts_), query) : QString();
}

} // namespace search
