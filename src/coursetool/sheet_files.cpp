#include "coursetool/sheet_files.h"

#include "coursetool/paths.h"
#include "files/cause.h"
#include "files/whole_file.h"
#include "output/pdf/pdf_file.h"
#include "output/png/png_file.h"
#include "output/raster/sheet_raster.h"
#include "output/svg/svg_file.h"

#include <QIODevice>

namespace coursetool {

namespace {

namespace fs = std::filesystem;

constexpr double kScreenDotsPerInch = 96;

/// A file as what writes PNG knows it.
class FileDevice : public QIODevice {
public:
    explicit FileDevice(files::WholeFile& file) : file_(file) {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 length) override {
        return file_.write(std::string_view(data, static_cast<std::size_t>(length))) ? length : -1;
    }

private:
    files::WholeFile& file_;
};

/// One file a sheet.
class SeparateFiles : public SheetFiles {
public:
    SeparateFiles(const RenderRequest& request, Report& report)
        : request_(request), report_(report) {}

    bool add(const page::Sheet& sheet, const QString& name) final {
        const fs::path path = request_.all()
                                  ? request_.output / pathFrom(fileName(name).toStdString())
                                  : request_.output;
        files::WholeFile file(path);
        if (!file.error() && write(sheet, file) && file.putInPlace())
            return true;
        const auto cause =
            file.error() ? file.error() : std::make_error_code(std::errc::not_enough_memory);
        report_.failure(path, files::kFileNotWritten, cause);
        return false;
    }

protected:
    virtual bool write(const page::Sheet& sheet, files::WholeFile& file) = 0;

    QString fileName(const QString& name) const {
        const std::string_view ending = rowOf(request_.format).name;
        return name + u'.' +
               QLatin1StringView(ending.data(), static_cast<qsizetype>(ending.size()));
    }

    const RenderRequest& request_;

private:
    Report& report_;
};

class PngFiles : public SeparateFiles {
public:
    PngFiles(const RenderRequest& request, const page::FontBook& fonts, Report& report)
        : SeparateFiles(request, report), raster_(fonts, request.scale) {}

private:
    bool write(const page::Sheet& sheet, files::WholeFile& file) override {
        const QSize size = raster_.size(sheet);
        FileDevice device(file);
        output::PngFile png(device, size, kScreenDotsPerInch * request_.scale);
        const int rows = raster_.bandRows(sheet);
        for (int top = 0; top < size.height(); top += rows)
            if (!png.add(raster_.band(sheet, top)))
                return false;
        return png.finish();
    }

    output::SheetRaster raster_;
};

class SvgFiles : public SeparateFiles {
public:
    SvgFiles(const RenderRequest& request, const page::FontBook& fonts, SheetSet set,
             Report& report)
        : SeparateFiles(request, report), fonts_(fonts), set_(std::move(set)) {}

private:
    bool write(const page::Sheet& sheet, files::WholeFile& file) override {
        const auto address = [this](const page::LinkArea& link) {
            const QString name = set_.fileOfTag(link.tag);
            return name.isEmpty() ? name : fileName(name);
        };
        const QByteArray document =
            output::svgDocument(sheet, fonts_, {.address = address, .scale = request_.scale});
        return file.write(
            std::string_view(document.constData(), static_cast<std::size_t>(document.size())));
    }

    const page::FontBook& fonts_;
    SheetSet set_;
};

class PdfSheets : public SheetFiles {
public:
    PdfSheets(const RenderRequest& request, const page::FontBook& fonts,
              output::PdfDocument document, Report& report)
        : place_{shown(request.output)},
          pdf_(QString::fromStdString(place_.file), fonts, std::move(document)), report_(report) {}

    bool add(const page::Sheet& sheet, const QString&) override {
        return pdf_.addSheet(sheet) || fail();
    }
    void finish() override {
        if (!pdf_.finish())
            fail();
    }

private:
    bool fail() {
        report_.failure(place_, pdf_.error().toStdString());
        return false;
    }

    Place place_;
    output::PdfFile pdf_;
    Report& report_;
};

} // namespace

std::unique_ptr<SheetFiles> openSheetFiles(const RenderRequest& request,
                                           const page::FontBook& fonts, SheetSet set,
                                           Report& report) {
    if (request.all() && !rowOf(request.format).holdsAll) {
        std::error_code error;
        fs::create_directories(request.output, error);
        if (error) {
            report.failure(request.output, files::kFolderNotCreated, error);
            return nullptr;
        }
    }
    switch (request.format) {
    case RenderFormat::Png:
        return std::make_unique<PngFiles>(request, fonts, report);
    case RenderFormat::Pdf:
        return std::make_unique<PdfSheets>(
            request, fonts, output::PdfDocument{set.title, {}, std::move(set.numberOfTag)}, report);
    case RenderFormat::Svg:
        return std::make_unique<SvgFiles>(request, fonts, std::move(set), report);
    }
    return nullptr;
}

} // namespace coursetool
