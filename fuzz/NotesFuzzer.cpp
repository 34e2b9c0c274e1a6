#include <QRegularExpression>
#include <QStringList>
#include <QTextDocument>

#include "Check.h"
#include "ui/update/ReleaseNotesHtml.h"

namespace tessarin::fuzz {
namespace {

/// Looks at what the filter wrote with other eyes: known tags only, closed in turn, links to HTTPS only.
void checkTags(const QString& html) {
  static const QRegularExpression tag(
      R"re(\G<(/?)(p|li|br|hr|ul|ol|blockquote|pre|b|strong|i|em|u|code|tt|h[1-6]|a)( href="https://[^"]*")?>)re");
  static const QStringList loose = {"p", "li", "br", "hr"};
  QStringList open;
  for (qsizetype at = html.indexOf(u'<'); at >= 0; at = html.indexOf(u'<', at)) {
    const auto match = tag.match(html, at);
    check(match.hasMatch(), "only harmless tags are left");
    at = match.capturedEnd();
    const QString name = match.captured(2);
    check((match.capturedLength(3) > 0) == (name == u"a" && match.capturedLength(1) == 0),
          "links lead somewhere, and nothing else does");
    if (loose.contains(name)) continue;
    if (match.capturedLength(1) == 0) {
      open << name;
    } else {
      check(!open.isEmpty() && open.takeLast() == name, "what closes was open");
    }
    check(open.size() <= 12, "nothing is nested deeply");
  }
}

}  // namespace
}  // namespace tessarin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarin;
  const QString notes = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const QString html = ui::releaseNotesHtml(notes);
  fuzz::check(html.size() <= 8 * notes.size() + 64, "the notes do not grow out of bounds");
  fuzz::checkTags(html);
  // Longer tags are left out, and escaping can make one longer.
  constexpr qsizetype shortEnough = 300;
  if (notes.size() < shortEnough && Qt::mightBeRichText(notes) && Qt::mightBeRichText(html)) {
    fuzz::check(ui::releaseNotesHtml(html) == html, "what was filtered passes the filter");
  }
  return 0;
}
