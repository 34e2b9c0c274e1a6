#include "importers/CsvSnippets.h"

#include <algorithm>
#include <array>
#include <optional>

#include "base/Translate.h"
#include "model/SnippetDraft.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

struct CsvRow {
  std::size_t line = 0;  ///< where it begins, counted from 1
  std::vector<std::string> cells;
};

/// Cuts a text whose lines end in line feeds into rows and cells.
class CsvReader {
 public:
  CsvReader(std::string_view text, char separator) : text_(text), separator_(separator) {}

  /// The next row; none at the end. Empty lines are passed over.
  std::optional<CsvRow> next() {
    while (at_ < text_.size() && text_[at_] == '\n') skipLineFeed();
    if (at_ == text_.size()) return std::nullopt;
    CsvRow row{line_, {}};
    do {
      row.cells.push_back(cell());
    } while (takeSeparator());
    return row;
  }

 private:
  std::string cell() {
    const std::size_t start = std::min(text_.find_first_not_of(' ', at_), text_.size());
    if (start == text_.size() || text_[start] != '"') return plainCell();
    at_ = start + 1;
    return quotedCell();
  }

  std::string plainCell() {
    const char stops[] = {separator_, '\n'};
    const std::size_t end = std::min(text_.find_first_of({stops, 2}, at_), text_.size());
    const std::string_view content = text_.substr(at_, end - at_);
    at_ = end;
    return std::string(content);
  }

  std::string quotedCell() {
    const std::size_t begun = line_;
    std::string content;
    for (;; ++at_) {
      const std::size_t quote = text_.find('"', at_);
      if (quote == std::string_view::npos) failAtLine("a quote is never closed", begun);
      content += text_.substr(at_, quote - at_);
      at_ = quote + 1;
      if (at_ == text_.size() || text_[at_] != '"') break;
      content += '"';
    }
    line_ += static_cast<std::size_t>(std::count(content.begin(), content.end(), '\n'));
    at_ = std::min(text_.find_first_not_of(' ', at_), text_.size());
    if (at_ < text_.size() && text_[at_] != separator_ && text_[at_] != '\n')
      failAtLine("something stands behind a closing quote", line_);
    return content;
  }

  bool takeSeparator() {
    if (at_ == text_.size()) return false;
    if (text_[at_] == separator_) return ++at_, true;
    skipLineFeed();
    return false;
  }

  void skipLineFeed() {
    ++at_;
    ++line_;
  }

  std::string_view text_;
  char separator_;
  std::size_t at_ = 0;
  std::size_t line_ = 1;
};

/// In how many rows a trigger that can be typed is followed by something. None where the quotes make no sense
/// with that separator.
std::optional<std::size_t> fittingRows(std::string_view text, char separator, const ImportTerms& terms) {
  try {
    CsvReader reader(text, separator);
    std::size_t fitting = 0;
    while (const auto row = reader.next()) {
      if (row->cells.size() < 2) continue;
      ForeignSnippets tried;
      tried.take({{}, row->cells[0], "text", {}, {}}, terms);
      if (!tried.snippets.empty() && tried.changed.empty()) ++fitting;
    }
    return fitting;
  } catch (const DataError&) {
    return std::nullopt;
  }
}

char separatorOf(std::string_view text, const ImportTerms& terms) {
  char best = ',';
  auto most = fittingRows(text, best, terms);
  for (const char other : {';', '\t'}) {
    const auto fitting = fittingRows(text, other, terms);
    if (fitting.value_or(0) <= most.value_or(0)) continue;
    best = other;
    most = fitting;
  }
  return best;
}

/// Which column holds what.
struct CsvColumns {
  std::size_t trigger = 0;
  std::size_t text = 1;
  std::size_t name = 2;
  std::size_t keywords = 3;
  bool isNamed = false;
};

constexpr std::size_t noColumn = static_cast<std::size_t>(-1);

std::size_t columnCalled(const CsvRow& header, std::initializer_list<std::string_view> names) {
  const auto column = std::ranges::find_if(header.cells, [&](const std::string& cell) {
    std::string_view name = cell;
    while (name.starts_with(' ')) name.remove_prefix(1);
    while (name.ends_with(' ')) name.remove_suffix(1);
    return std::ranges::find(names, text::lowercased(name)) != names.end();
  });
  return column == header.cells.end() ? noColumn : static_cast<std::size_t>(column - header.cells.begin());
}

/// As the first row names them, if it does.
CsvColumns columnsOf(const CsvRow& first) {
  const CsvColumns named{
      columnCalled(first, {"trigger", "shortcut", "shortcode", "abbreviation"}),
      columnCalled(first, {"text", "replacement", "replace", "expansion", "phrase", "content"}),
      columnCalled(first, {"name", "title", "label", "description"}),
      columnCalled(first, {"keywords", "tags"}), true};
  return named.trigger == noColumn || named.text == noColumn ? CsvColumns() : named;
}

std::string cellOf(const CsvRow& row, std::size_t column) {
  return column < row.cells.size() ? row.cells[column] : std::string();
}

void takeRow(ForeignSnippets& result, const CsvRow& row, const CsvColumns& columns,
             const ImportTerms& terms) {
  constexpr std::size_t mostColumns = 4;
  // Spreadsheets write rows of separators alone.
  if (std::ranges::all_of(row.cells, &std::string::empty)) return;
  const std::string trigger = cellOf(row, columns.trigger);
  const std::string where =
      shownAt(filledIn(translate("Importers", "line %1"), {std::to_string(row.line)}), trigger);
  // A text that stands without quotes would lose what is behind its comma.
  if (!columns.isNamed && row.cells.size() > mostColumns)
    return result.leaveOut(
        where, translate("Importers", "it has more than four columns; a text with separators needs quotes"));
  result.take({where, trigger, cellOf(row, columns.text), cellOf(row, columns.name),
               parseKeywords(cellOf(row, columns.keywords))},
              terms);
}

}  // namespace

ForeignSnippets readCsvSnippets(std::string_view csv, const ImportTerms& terms) {
  const std::string text = withLineFeeds(requireUtf8(csv));
  CsvReader reader(text, separatorOf(text, terms));
  ForeignSnippets result;
  auto row = reader.next();
  if (!row) return result;
  const CsvColumns columns = columnsOf(*row);
  if (columns.isNamed) row = reader.next();
  for (; row; row = reader.next()) takeRow(result, *row, columns, terms);
  return result;
}

}  // namespace tessarin
