#pragma once

#include "page/text_metrics.h"

#include <QByteArray>
#include <QList>
#include <QPointF>
#include <QRawFont>

#include <memory>
#include <vector>

namespace page {

/// The faces that stand in for those a page asks for, and the one place that measures text and
/// chooses glyphs. Widths come from a reference font of 15 times the size in pixels, unhinted and
/// without kerning, so that its pixels are twips; heights from the design numbers of the faces
/// asked for. Both are the same on every device. A character that a face lacks is taken from the
/// next face of a fixed list.
class FontBook : public TextMetrics {
public:
    FontBook();
    ~FontBook() override;

    double width(const Font& font, QStringView text) const override;
    double height(const Font& font) const override;
    double ascent(const Font& font) const override;

    /// Glyphs of one face, in a row.
    struct Run {
        int fallback; ///< which face of the list, for deviceFont()
        QList<quint32> glyphs;
        QList<double> offsets; ///< twips from the start of the text
    };

    /// The glyphs of a text and where each stands.
    std::vector<Run> place(const Font& font, QStringView text) const;

    /// The face of a run at a size of its own, in device pixels, for drawing on a raster.
    QRawFont deviceFont(const Font& font, int fallback, double pixelSize) const;

    /// One glyph of a text, and the character that it shows.
    struct PlacedGlyph {
        int fallback; ///< which face of the list, for faceSource()
        quint32 index;
        double offset;      ///< twips from the start of the text
        char32_t character; ///< Unicode, also for the sign faces' codes; 0 when there is none
    };

    /// The same as place(), glyph by glyph, for devices that keep text as text.
    std::vector<PlacedGlyph> glyphs(const Font& font, QStringView text) const;

    /// Where the glyphs of a fallback come from, for devices that draw without Qt.
    struct FaceSource {
        QByteArray file;   ///< a font file whose glyph numbers are those of PlacedGlyph
        bool bold, italic; ///< what was asked for; a file that is not so itself is made so
    };

    /// The same object for the same file and style, for as long as the program runs. The file is
    /// empty when no face is there.
    static const FaceSource& faceSource(const Font& font, int fallback);

    /// The families that a face's characters come from: the first that has it, at the place that
    /// PlacedGlyph::fallback tells.
    static QStringList families(const QString& face);

    /// Families that no installed font answers for, as a person would name them; empty when all
    /// stand-ins are there.
    static QStringList missingFamilies();

private:
    class Face;

    const Face& face(const Font& font) const;

    mutable std::vector<std::pair<Font, std::unique_ptr<Face>>> faces_;
    mutable std::size_t lastUsed_ = 0;
};

} // namespace page
