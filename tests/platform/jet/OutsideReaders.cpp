// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/OutsideReaders.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <numeric>
#include <QProcess>
#include <QStandardPaths>
#include <stdexcept>
#include <vector>

#include "platform/Status.h"

using namespace jet;

namespace {

// Characters that are in no sample's text.
const std::string fieldEnd = "~|F|~";
const std::string rowEnd = "~|R|~";
const std::string nullMark = "~|N|~";

std::string run(const QString& program, const std::vector<std::string>& arguments, int* exitCode) {
    QProcess process;
    QStringList texts;
    for (const std::string& argument : arguments)
        texts << QString::fromStdString(argument);
    process.start(program, texts);
    if (!process.waitForFinished(60000)) throw std::runtime_error("cannot run " + program.toStdString());
    *exitCode = process.exitCode();
    return process.readAllStandardOutput().toStdString();
}

std::vector<std::string> split(const std::string& text, const std::string& end) {
    std::vector<std::string> parts;
    size_t from = 0;
    for (size_t at; (at = text.find(end, from)) != std::string::npos; from = at + end.size())
        parts.push_back(text.substr(from, at - from));
    parts.push_back(text.substr(from));
    return parts;
}

std::string numberText(double number, Type type) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, type == Type::Single ? "%.6g" : "%.14g", number);
    return buffer;
}

// Whole seconds since 1899-12-30. The other reader knows no dates before 1900.
std::string secondsText(long long seconds) {
    return seconds < 2 * 86400 ? "before 1900" : std::to_string(seconds);
}

std::string dateText(double days) {
    return secondsText(std::llround(days * 86400));
}

std::string dateText(const std::string& iso) {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    if (std::sscanf(iso.c_str(), "%d-%d-%d %d:%d:%d", &year, &month, &day, &hour, &minute, &second) != 6)
        return "no date: " + iso;
    using namespace std::chrono;
    const auto date = sys_days(std::chrono::year(year) / month / day);
    const auto first = sys_days(std::chrono::year(1899) / 12 / 30);
    return secondsText((date - first).count() * 86400LL + hour * 3600 + minute * 60 + second);
}

// The five bytes that the code page of Access 97 leaves undefined are question marks to the other reader.
std::string withoutUndefined(std::string text) {
    for (const char* undefined : {"\u0081", "\u008D", "\u008F", "\u0090", "\u009D"})
        for (size_t at; (at = text.find(undefined)) != std::string::npos;)
            text.replace(at, 2, "?");
    return text;
}

std::string comparable(const Value& value, Type type) {
    if (std::holds_alternative<std::monostate>(value)) return nullMark;
    if (const bool* yes = std::get_if<bool>(&value)) return *yes ? "1" : "0";
    if (const int64_t* number = std::get_if<int64_t>(&value)) return std::to_string(*number);
    if (const double* number = std::get_if<double>(&value)) return numberText(*number, type);
    if (const Date* date = std::get_if<Date>(&value)) return dateText(date->days);
    if (const Currency* amount = std::get_if<Currency>(&value))
        return numberText(static_cast<double>(amount->tenThousandths) / 10000, type);
    // The other reader does not distinguish an empty text from Null.
    if (const std::string* text = std::get_if<std::string>(&value))
        return text->empty() ? nullMark : withoutUndefined(*text);
    return std::to_string(std::get<Bytes>(value).size()) + " bytes";
}

std::string comparable(const std::string& text, Type type) {
    if (text.empty() || text == nullMark) return nullMark;
    switch (type) {
        case Type::Single:
        case Type::Double:
        case Type::Currency:
            return numberText(std::strtod(text.c_str(), nullptr), type);
        case Type::Date:
            return dateText(text);
        default:
            return withoutUndefined(text);
    }
}

// Types that both readers print in a form that can be compared.
bool isCompared(Type type) {
    return type != Type::Ole && type != Type::Binary && type != Type::Guid && type != Type::Numeric &&
           static_cast<int>(type) <= static_cast<int>(Type::Memo);
}

}  // namespace

std::optional<std::string> sharedCheckerFindings(const std::string& file) {
    const std::string checker = SHARED_DIR "/tools/jetfsck.py";
    if (!std::filesystem::exists(checker)) {
        std::printf("[ SKIPPED  ] %s is not here\n", checker.c_str());
        return std::nullopt;
    }
    int exitCode = 0;
    const std::string output = run(QStringLiteral("/usr/bin/python3"), {checker, "fsck", file}, &exitCode);
    return exitCode == 0 ? std::string() : output + "exit code " + std::to_string(exitCode);
}

ComparableRow comparableRow(const TableDefinition& table, const std::function<Value(size_t)>& valueOf) {
    ComparableRow row(table.columns.size());
    for (size_t i = 0; i < row.size(); ++i)
        if (const Type type = table.columns[i].type; isCompared(type)) row[i] = comparable(valueOf(i), type);
    return row;
}

std::string joined(const ComparableRow& row) {
    std::string line;
    for (const std::string& field : row)
        line += field + "|";
    return line;
}

std::optional<std::vector<ComparableRow>> mdbtoolsTable(const std::string& file,
                                                        const TableDefinition& table) {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("mdb-export"));
    if (program.isEmpty()) {
        std::printf("[ SKIPPED  ] mdb-export is not installed\n");
        return std::nullopt;
    }
    int exitCode = 0;
    const std::string output = run(program,
                                   {"-H", "-Q", "-b", "strip", "-d", fieldEnd, "-R", rowEnd, "-0", nullMark,
                                    "-D", "%Y-%m-%d %H:%M:%S", "-T", "%Y-%m-%d %H:%M:%S", file, table.name},
                                   &exitCode);
    if (exitCode != 0) throw std::runtime_error("mdb-export failed on " + table.name);
    // It prints the columns in the order of the definition, which is that of their numbers in users' tables.
    std::vector<size_t> order(table.columns.size());
    std::iota(order.begin(), order.end(), size_t{0});
    std::sort(order.begin(), order.end(),
              [&](size_t a, size_t b) { return table.columns[a].number < table.columns[b].number; });
    std::vector<ComparableRow> rows;
    for (const std::string& line : split(output, rowEnd)) {
        if (line.empty()) continue;
        const std::vector<std::string> fields = split(line, fieldEnd);
        ComparableRow& row = rows.emplace_back(order.size());
        for (size_t i = 0; i < order.size(); ++i)
            if (const Type type = table.columns[order[i]].type; isCompared(type))
                row[order[i]] = i < fields.size() ? comparable(fields[i], type) : "missing";
    }
    return rows;
}

std::optional<std::multiset<std::string>> mdbtoolsRows(const std::string& file,
                                                       const TableDefinition& table) {
    const auto rows = mdbtoolsTable(file, table);
    if (!rows) return std::nullopt;
    std::multiset<std::string> lines;
    for (const ComparableRow& row : *rows)
        lines.insert(joined(row));
    return lines;
}

std::multiset<std::string> engineRows(Table& table) {
    std::multiset<std::string> lines;
    const Status status = table.scan([&](RowId id, const RowView&) {
        lines.insert(joined(comparableRow(table.definition(), [&](size_t column) -> Value {
            auto value = table.value(id, column);
            return value.ok() ? std::move(value).value() : Value(value.status().text().toStdString());
        })));
        return true;
    });
    if (!status.ok()) throw std::runtime_error(status.text().toStdString());
    return lines;
}

std::string firstDifference(const std::multiset<std::string>& got,
                            const std::multiset<std::string>& expected) {
    const auto [a, b] = std::mismatch(got.begin(), got.end(), expected.begin(), expected.end());
    if (a == got.end() && b == expected.end()) return {};
    return "got " + (a == got.end() ? std::string("nothing") : *a) + "\nexpected " +
           (b == expected.end() ? std::string("nothing") : *b);
}
