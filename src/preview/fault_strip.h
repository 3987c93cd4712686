#pragma once

#include "coursetool/report.h"

#include <QString>
#include <QWidget>

#include <filesystem>
#include <vector>

namespace preview {

/// What is wrong with the sources, a line each, on a strip at the foot of the page; hidden while
/// there is nothing to say. A click on a line copies its place, "pages/2.md:5:7".
class FaultStrip : public QWidget {
public:
    /// `foot`: where its lower edge stands, and how wide it is at most, in pixels of the parent.
    FaultStrip(const QRect& foot, QWidget* parent);

    /// Paths are shown as they stand in `sources`.
    void show(const std::vector<coursetool::Remark>& remarks, const std::filesystem::path& sources);

private:
    void clear();
    void addLine(const QString& place, const QString& words, QRgb ink);

    /// More lines than that would hide the page; the last tells then how many more there are.
    static constexpr std::size_t kMostLines = 4;

    QRect foot_;
    std::vector<QWidget*> lines_;
};

} // namespace preview
