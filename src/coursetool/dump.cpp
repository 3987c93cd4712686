#include "coursetool/dump.h"

#include "coursetool/json_number.h"
#include "coursetool/json_string.h"
#include "coursetool/paths.h"
#include "jet/database_file.h"
#include "jet/value_text.h"
#include "text/utf8.h"

#include <charconv>
#include <limits>
#include <type_traits>

namespace coursetool {

namespace {

void append(std::string_view utf8, std::string& out) {
    appendJsonString(utf8, out);
}

template <class Number>
void appendContent(const Number& number, std::string& out) {
    static_assert(std::is_integral_v<Number>);
    char digits[std::numeric_limits<Number>::digits10 + 2]; // one more digit, and a sign
    out.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}
void appendContent(std::monostate, std::string& out) {
    out += "null";
}
void appendContent(bool flag, std::string& out) {
    out += flag ? "true" : "false";
}
void appendContent(float number, std::string& out) {
    appendJsonNumber(number, out);
}
void appendContent(double number, std::string& out) {
    appendJsonNumber(number, out);
}
void appendContent(const std::u16string& text, std::string& out) {
    append(text::toUtf8(text), out);
}
void appendContent(const jet::Binary& bytes, std::string& out) {
    append(jet::toHex(bytes), out);
}
void appendContent(const jet::Currency& amount, std::string& out) {
    append(jet::toText(amount), out);
}
void appendContent(const jet::Decimal& number, std::string& out) {
    append(jet::toText(number), out);
}
void appendContent(const jet::Guid& guid, std::string& out) {
    append(jet::toText(guid), out);
}
void appendContent(const jet::DateTime& moment, std::string& out) {
    // What lies outside the calendar is shown as it is stored, a number of days.
    if (const auto text = jet::toText(moment))
        append(*text, out);
    else
        appendJsonNumber(moment.days, out);
}

bool isText(const jet::Column& column) {
    return column.type == jet::ColumnType::Text || column.type == jet::ColumnType::Memo;
}

/// Writes the records of one table.
class RowWriter {
public:
    RowWriter(jet::Table& table, OutputBuffer& out) : table_(table), out_(out) {
        for (const jet::Column& column : table.columns()) {
            std::string key = keys_.empty() ? "{" : ",";
            append(text::toUtf8(column.name), key);
            keys_.push_back(key + ':');
        }
    }

    jet::Problems write() {
        jet::Problems passedOver = table_.visit([&](jet::RecordView& record) {
            writeRow(record);
            return out_.lineDone();
        });
        passedOver.add(damagedCells_);
        return passedOver;
    }

private:
    void writeRow(jet::RecordView& record) {
        std::string& line = out_.text();
        for (std::size_t column = 0; column < keys_.size(); ++column) {
            line += keys_[column];
            const bool done = isText(table_.columns()[column]) ? writeText(record, column, line)
                                                               : writeValue(record, column, line);
            if (!done)
                line += "null";
        }
        line += keys_.empty() ? "{}\n" : "}\n";
    }

    bool writeText(jet::RecordView& record, std::size_t column, std::string& line) {
        const std::size_t before = line.size();
        JsonString text(line);
        const auto present = record.readText(column, text);
        if (present && *present) {
            text.close();
            return true;
        }
        line.resize(before);
        return present ? false : tell(present.error(), record.position());
    }

    bool writeValue(jet::RecordView& record, std::size_t column, std::string& line) {
        if (const auto read = record.read(column, value_); !read)
            return tell(read.error(), record.position());
        appendJsonValue(value_, line);
        return true;
    }

    bool tell(const jet::Failure& failure, std::size_t position) {
        damagedCells_.add("enregistrement " + std::to_string(position + 1) + " : " +
                          failure.sentence);
        return false;
    }

    jet::Table& table_;
    OutputBuffer& out_;
    std::vector<std::string> keys_;
    jet::Value value_;
    jet::Problems damagedCells_;
};

void appendColumn(const jet::Column& column, std::string& out) {
    out += "{\"name\":";
    append(text::toUtf8(column.name), out);
    out += ",\"type\":";
    append(jet::typeName(column.type), out);
    if (column.type == jet::ColumnType::Text || column.type == jet::ColumnType::Binary)
        out += ",\"length\":" + std::to_string(column.length);
    out += '}';
}

void writeTable(const jet::Table& table, OutputBuffer& out) {
    std::string& line = out.text();
    line += "{\"table\":";
    append(text::toUtf8(table.name()), line);
    line += ",\"columns\":[";
    for (const jet::Column& column : table.columns()) {
        if (line.back() == '}')
            line += ',';
        appendColumn(column, line);
    }
    line += "]}\n";
    out.lineDone();
}

void dumpTables(const jet::Database& database, const std::filesystem::path& file, OutputBuffer& out,
                Report& report) {
    for (const jet::TableInfo& info : database.tables()) {
        if (const auto table = database.table(info.name))
            writeTable(*table, out);
        else
            report.fault({shown(file)}, table.error().sentence);
    }
}

ExitCode dumpTable(const jet::Database& database, const std::string& name,
                   const std::filesystem::path& file, OutputBuffer& out, Report& report) {
    auto table = database.table(text::toUtf16(name));
    if (!table) {
        report.fault({shown(file)}, table.error().sentence);
        return table.error().kind == jet::Failure::Kind::NotFound ? ExitCode::WrongCall
                                                                  : ExitCode::Faults;
    }
    reportProblems(RowWriter(*table, out).write(), file, report);
    return ExitCode::Fine;
}

} // namespace

void appendJsonValue(const jet::Value& value, std::string& out) {
    std::visit([&](const auto& content) { appendContent(content, out); }, value.content());
}

void reportProblems(const jet::Problems& problems, const std::filesystem::path& file,
                    Report& report) {
    for (const std::string& sentence : problems.sentences())
        report.fault({shown(file)}, sentence);
    if (const std::size_t more = problems.count() - problems.sentences().size())
        report.fault({shown(file)}, "et " + std::to_string(more) + " autres défauts");
}

ExitCode dump(const std::filesystem::path& file, const std::string& tableName, OutputBuffer& out,
              Report& report) {
    const auto database = jet::openDatabase(file);
    if (!database) {
        report.fault({shown(file)}, database.error().sentence);
        return ExitCode::Faults;
    }
    reportProblems(database->problems(), file, report);
    ExitCode code = ExitCode::Fine;
    if (tableName.empty())
        dumpTables(*database, file, out, report);
    else
        code = dumpTable(*database, tableName, file, out, report);
    if (!out.flush())
        report.outputFailure(out.error());
    return code == ExitCode::Fine && report.hasFaults() ? ExitCode::Faults : code;
}

} // namespace coursetool
