#include "coursetool/sheet_files.h"

#include "coursetool/paths.h"
#include "platform/cairo/pdf_file.h"
#include "platform/png/png_file.h"
#include "platform/qt/sheet_raster.h"
#include "platform/svg/svg_file.h"

#include <QFile>

namespace coursetool {

namespace {

namespace fs = std::filesystem;

constexpr double kScreenDotsPerInch = 96;

constexpr char kCannotWrite[] = "ne peut pas être écrit";

/// One file a sheet.
class SeparateFiles : public SheetFiles {
public:
    SeparateFiles(const RenderRequest& request, const char* ending, Report& report)
        : request_(request), ending_(ending), report_(report) {}

    bool add(const platform::Sheet& sheet, const QString& name) final {
        const fs::path path = request_.all()
                                  ? request_.output / pathFrom((name + ending_).toStdString())
                                  : request_.output;
        QFile file(path);
        if (file.open(QIODevice::WriteOnly) && write(sheet, file) && file.flush())
            return true;
        report_.fault({shown(path)}, kCannotWrite);
        // Half a file would pass for a page.
        if (file.isOpen())
            file.remove();
        return false;
    }

protected:
    virtual bool write(const platform::Sheet& sheet, QFile& file) = 0;

    const RenderRequest& request_;
    const QLatin1String ending_;

private:
    Report& report_;
};

class PngFiles : public SeparateFiles {
public:
    PngFiles(const RenderRequest& request, const platform::FontBook& fonts, Report& report)
        : SeparateFiles(request, ".png", report), raster_(fonts, request.scale) {}

private:
    bool write(const platform::Sheet& sheet, QFile& file) override {
        const QSize size = raster_.size(sheet);
        platform::PngFile png(file, size, kScreenDotsPerInch * request_.scale);
        const int rows = raster_.bandRows(sheet);
        for (int top = 0; top < size.height(); top += rows)
            if (!png.add(raster_.band(sheet, top)))
                return false;
        return png.finish();
    }

    platform::SheetRaster raster_;
};

class SvgFiles : public SeparateFiles {
public:
    SvgFiles(const RenderRequest& request, const platform::FontBook& fonts, SheetSet set,
             Report& report)
        : SeparateFiles(request, ".svg", report), fonts_(fonts), set_(std::move(set)) {}

private:
    bool write(const platform::Sheet& sheet, QFile& file) override {
        const auto address = [this](const QString& tag) {
            const QString name = set_.fileOfTag(tag);
            return name.isEmpty() ? name : name + ending_;
        };
        const QByteArray document = platform::svgDocument(sheet, fonts_, address, request_.scale);
        return file.write(document) == document.size();
    }

    const platform::FontBook& fonts_;
    SheetSet set_;
};

class PdfSheets : public SheetFiles {
public:
    PdfSheets(const RenderRequest& request, const platform::FontBook& fonts,
              platform::PdfDocument document, Report& report)
        : place_{shown(request.output)},
          pdf_(QString::fromStdString(place_.file), fonts, std::move(document)), report_(report) {}

    bool add(const platform::Sheet& sheet, const QString&) override {
        return pdf_.addSheet(sheet) || fail();
    }
    void finish() override {
        if (!pdf_.finish())
            fail();
    }

private:
    bool fail() {
        report_.fault(place_, pdf_.error().toStdString());
        return false;
    }

    Place place_;
    platform::PdfFile pdf_;
    Report& report_;
};

} // namespace

std::unique_ptr<SheetFiles> openSheetFiles(const RenderRequest& request,
                                           const platform::FontBook& fonts, SheetSet set,
                                           Report& report) {
    if (request.format == RenderFormat::Pdf)
        return std::make_unique<PdfSheets>(
            request, fonts, platform::PdfDocument{set.title, {}, std::move(set.numberOfTag)},
            report);
    if (request.all()) {
        std::error_code error;
        fs::create_directories(request.output, error);
        if (error) {
            report.fault({shown(request.output)}, "ce dossier ne peut pas être créé");
            return nullptr;
        }
    }
    if (request.format == RenderFormat::Svg)
        return std::make_unique<SvgFiles>(request, fonts, std::move(set), report);
    return std::make_unique<PngFiles>(request, fonts, report);
}

} // namespace coursetool
