#pragma once

#include "check/source.h"
#include "coursetool/front_matter.h"
#include "coursetool/picture_descriptions.h"
#include "coursetool/tables.h"
#include "markup/picture_source.h"
#include "page/text_metrics.h"

#include <QString>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

namespace check {

/// The fields of one record, found by their names.
class Record {
public:
    Record() = default;
    Record(const coursetool::TableRule& table, coursetool::Fields fields, coursetool::Place place,
           std::string name)
        : table_(&table), fields_(std::move(fields)), place_(std::move(place)),
          name_(std::move(name)) {}

    /// Nothing for NULL.
    std::optional<std::int32_t> number(std::string_view field) const;
    std::optional<QString> text(std::string_view field) const;
    bool flag(std::string_view field) const;

    /// Where the field is given; the record's own place when it is not.
    const coursetool::Place& place(std::string_view field) const;
    const coursetool::Place& place() const { return place_; }
    const std::string& name() const { return name_; }

    std::set<std::string> ignored; ///< codes that its file silences

private:
    std::size_t index(std::string_view field) const;

    const coursetool::TableRule* table_ = nullptr;
    coursetool::Fields fields_;
    coursetool::Place place_;
    std::string name_;
};

struct Page {
    Record record;
    Source source;
};

struct Question {
    Record record;
    Source source;
    Source comment; ///< empty when there is none
};

/// A course as its sources or its installation directory have it, in record order.
struct Course {
    std::filesystem::path root; ///< what was checked
    bool isInstalled = false;
    std::filesystem::path filesFolder; ///< where its pictures, videos and symbols are
    std::filesystem::path discFolder;  ///< with ZEKXDATA and ZEKXV
    std::string pagesPlace;            ///< for findings about all of them
    std::vector<Page> pages;
    std::vector<Record> tests;
    std::vector<Question> questions;
    std::set<std::string> ignored; ///< codes that the whole course silences
    coursetool::PictureDescriptions descriptions;

    // What pages are drawn with.
    const page::TextMetrics* metrics = nullptr;
    markup::PictureSource* pictures = nullptr;

    /// The page that a number leads to: of several the last one. Null for none.
    const Page* page(std::int32_t number) const;
    /// The last page with this reading-order index; null for none.
    const Page* pageInOrder(std::int32_t index) const;
    /// To be called once all pages are there, and again when they are others.
    void indexPages();

private:
    std::unordered_map<std::int32_t, std::size_t> byNumber_;
    std::unordered_map<std::int32_t, std::size_t> byOrder_;
};

/// Numbers of "PAG" codes have three digits.
inline constexpr int kHighestCode = 999;
/// References of questions are a hundred times the chapter's number and that of the question.
inline constexpr int kQuestionsPerChapter = 100;

} // namespace check
