#pragma once

#include "jet/writer.h"
#include "search/page_search.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace search {

/// A record of "cours", as far as it matters here.
struct Record {
    jet::Value number;
    jet::Value titre;
    bool moteur = true;
    jet::Value fpc;
};

/// A course database in a directory of its own, both gone with the object.
class Course {
public:
    explicit Course(const std::vector<Record>& records);
    ~Course();
    Course(const Course&) = delete;
    Course& operator=(const Course&) = delete;

    std::filesystem::path file() const { return directory_ / "Zekx.mdb"; }

private:
    std::filesystem::path directory_;
};

/// Records with these sources, which take part in the search, without titles.
std::vector<Record> withSources(const std::vector<std::u16string>& sources);

/// Positions of the pages found, in their order, once the search is over.
std::vector<int> positions(PageSearch& search);
std::vector<int> found(CoursePages& pages, const Query& query);

} // namespace search
