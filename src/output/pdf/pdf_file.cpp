#include "output/pdf/pdf_file.h"

#include "files/cause.h"
#include "files/whole_file.h"
#include "output/pdf/cairo_faces.h"
#include "output/pdf/cairo_pictures.h"
#include "output/pdf/sheet_player.h"
#include "platform/file_names.h"

#include <QRectF>

#include <cairo-pdf.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace output {

namespace {

constexpr double kTwipsPerPoint = 20;

/// Longest edge of a page that every reader shows, in points (ISO 32000-1, annex C.2). The tallest
/// surface has 30,000.
constexpr double kMaxPagePoints = 14400;

struct ContextRelease {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
};

cairo_status_t write(void* file, const unsigned char* bytes, unsigned int count) {
    return static_cast<files::WholeFile*>(file)->write(std::span(bytes, count))
               ? CAIRO_STATUS_SUCCESS
               : CAIRO_STATUS_WRITE_ERROR;
}

QString failure(const char* what, std::error_code error) {
    return QString::fromUtf8(what) + QStringLiteral("\u00A0: ") +
           QString::fromStdString(files::causeOf(error));
}

QByteArray destination(int number) {
    return "page" + QByteArray::number(number);
}

/// Numbers as tags have them, whatever the person's language.
QByteArray numbers(std::initializer_list<double> values) {
    QByteArray text;
    for (const double value : values)
        text += (text.isEmpty() ? "" : " ") + QByteArray::number(value, 'f', 3);
    return text;
}

} // namespace

class PdfFile::Writer {
public:
    Writer(const QString& path, const page::FontBook& fonts, PdfDocument document)
        : file_(platform::standardPath(path)), document_(std::move(document)),
          player_(fonts, faces_, pictures_) {
        if (file_.error())
            error_ = failure(files::kFileNotCreated, file_.error());
    }

    bool addSheet(const page::Sheet& sheet, double width) {
        if (!error_.isEmpty())
            return false;
        endPage();
        const double wanted = width > 0 && sheet.width > 0 ? width / sheet.width : 1;
        const double longest = std::max(sheet.width, sheet.height) / kTwipsPerPoint;
        scale_ = std::min(wanted, kMaxPagePoints / longest) / kTwipsPerPoint;
        beginPage(std::max(1.0, sheet.width * scale_), std::max(1.0, sheet.height * scale_));
        name(sheet);
        cairo_save(context_.get());
        cairo_scale(context_.get(), scale_, scale_);
        player_.play(sheet, context_.get());
        cairo_restore(context_.get());
        for (const page::LinkArea& link : sheet.links)
            addLink(link, sheet);
        return check();
    }

    bool finish() {
        if (error_.isEmpty() && pages_ == 0)
            error_ = QStringLiteral("il n’y a aucune page à écrire");
        if (!error_.isEmpty())
            return false;
        // Links to a sheet that never came, because the job was stopped, end here: a document with
        // links to nowhere would not be written at all.
        for (const int number : linked_)
            if (!targets_.contains(number))
                addDestination(number);
        endPage();
        cairo_tag_end(context_.get(), "Document");
        cairo_surface_finish(pdf_.get());
        if (!check())
            return false;
        if (!file_.putInPlace())
            error_ = writingFailure();
        return error_.isEmpty();
    }

    const QString& error() const { return error_; }

private:
    /// The page begun last is complete.
    void endPage() {
        if (pages_ == 0)
            return;
        cairo_show_page(context_.get());
        pictures_.endPage();
    }

    void beginPage(double width, double height) {
        if (++pages_ == 1)
            beginDocument(width, height);
        else
            cairo_pdf_surface_set_size(pdf_.get(), width, height);
        // White paper: fills are multiplied with it, and cairo reckons less where all of the page
        // is covered from the start. It would wipe what comes before it, tags included.
        cairo_set_source_rgb(context_.get(), 1, 1, 1);
        cairo_paint(context_.get());
        // Links are parts of the document's structure, so it has to have one.
        if (pages_ == 1)
            cairo_tag_begin(context_.get(), "Document", nullptr);
    }

    void beginDocument(double width, double height) {
        pdf_.reset(cairo_pdf_surface_create_for_stream(write, &file_, width, height));
        const auto tell = [this](cairo_pdf_metadata_t what, const QString& text) {
            cairo_pdf_surface_set_metadata(pdf_.get(), what, text.toUtf8().constData());
        };
        tell(CAIRO_PDF_METADATA_TITLE, document_.title);
        tell(CAIRO_PDF_METADATA_AUTHOR, document_.author);
        // No date: the same sheets are to give the same file.
        cairo_pdf_surface_set_metadata(pdf_.get(), CAIRO_PDF_METADATA_CREATE_DATE, nullptr);
        context_.reset(cairo_create(pdf_.get()));
    }

    /// The page's target, label and line of the outline.
    void name(const page::Sheet& sheet) {
        const bool numbered = sheet.number > 0;
        const QByteArray label = QByteArray::number(numbered ? sheet.number : pages_);
        cairo_pdf_surface_set_page_label(pdf_.get(), label.constData());
        QByteArray target = "page=" + QByteArray::number(pages_) + " pos=[0 0]";
        if (numbered && targets_.insert(sheet.number).second) {
            target = "dest='" + destination(sheet.number) + "'";
            addDestination(sheet.number);
        }
        QByteArray title = sheet.title.simplified().toUtf8();
        if (title.isEmpty())
            title = "Page " + label;
        // A page of the course that goes on on a further sheet has one line in the outline.
        if (!numbered || sheet.number != numberBefore_ || sheet.title != titleBefore_)
            cairo_pdf_surface_add_outline(pdf_.get(), CAIRO_PDF_OUTLINE_ROOT, title.constData(),
                                          target.constData(), cairo_pdf_outline_flags_t{});
        numberBefore_ = sheet.number;
        titleBefore_ = sheet.title;
    }

    void addDestination(int number) {
        const QByteArray place = "name='" + destination(number) + "' x=0 y=0";
        cairo_tag_begin(context_.get(), CAIRO_TAG_DEST, place.constData());
        cairo_tag_end(context_.get(), CAIRO_TAG_DEST);
    }

    void addLink(const page::LinkArea& link, const page::Sheet& sheet) {
        const auto number = document_.pageOfTag ? document_.pageOfTag(link.tag) : std::nullopt;
        const auto place =
            std::find_if(sheet.surfaces.begin(), sheet.surfaces.end(),
                         [&](const page::PlacedSurface& s) { return s.surface == link.surface; });
        if (!number || place == sheet.surfaces.end())
            return;
        const QRectF surface(place->x, place->y, place->width, place->height);
        const QRectF shown =
            surface & QRectF(place->x + link.x, place->y + link.y, link.width, link.height);
        if (shown.isEmpty())
            return;
        linked_.insert(*number);
        const QByteArray attributes = "rect=[" +
                                      numbers({shown.x() * scale_, shown.y() * scale_,
                                               shown.width() * scale_, shown.height() * scale_}) +
                                      "] dest='" + destination(*number) + "'";
        cairo_tag_begin(context_.get(), CAIRO_TAG_LINK, attributes.constData());
        cairo_tag_end(context_.get(), CAIRO_TAG_LINK);
    }

    bool check() {
        if (file_.error())
            error_ = writingFailure();
        else if (cairo_status(context_.get()) != CAIRO_STATUS_SUCCESS ||
                 cairo_surface_status(pdf_.get()) != CAIRO_STATUS_SUCCESS)
            error_ =
                QStringLiteral("le document n’a pas pu être composé (mémoire insuffisante\u00A0?)");
        return error_.isEmpty();
    }

    QString writingFailure() const { return failure(files::kFileNotWritten, file_.error()); }

    // Later members use earlier ones until they are gone.
    files::WholeFile file_;
    PdfDocument document_;
    CairoFaces faces_;
    CairoPictures pictures_;
    SheetPlayer player_;
    CairoSurface pdf_;
    std::unique_ptr<cairo_t, ContextRelease> context_;
    double scale_ = 1 / kTwipsPerPoint;
    int pages_ = 0;
    std::set<int> targets_;
    std::set<int> linked_; ///< numbers that links lead to
    int numberBefore_ = 0; ///< of the sheet before, and its title
    QString titleBefore_;
    QString error_;
};

PdfFile::PdfFile(const QString& path, const page::FontBook& fonts, PdfDocument document)
    : writer_(std::make_unique<Writer>(path, fonts, std::move(document))) {}
PdfFile::~PdfFile() = default;
PdfFile::PdfFile(PdfFile&&) noexcept = default;
PdfFile& PdfFile::operator=(PdfFile&&) noexcept = default;

bool PdfFile::addSheet(const page::Sheet& sheet, double width) {
    return writer_->addSheet(sheet, width);
}

bool PdfFile::finish() {
    return writer_->finish();
}

QString PdfFile::error() const {
    return writer_->error();
}

} // namespace output
