#include "ui/update/ReleaseNotesHtml.h"

#include <QRegularExpression>
#include <QStringList>
#include <QTextDocument>

namespace tessarin::ui {
namespace {

/// Some twenty pages of text.
constexpr qsizetype maximumLength = 65536;
constexpr qsizetype maximumListDepth = 12;
constexpr qsizetype longestTag = 2000;

const QStringList& containers() {
  static const QStringList tags = {"ul",   "ol", "blockquote", "pre", "b",  "strong", "i",  "em", "u",
                                   "code", "tt", "h1",         "h2",  "h3", "h4",     "h5", "h6", "a"};
  return tags;
}

/// Those that stand between texts, so that words do not run together where they are left out.
const QStringList& breaks() {
  static const QStringList tags = {"div", "section", "article", "table", "tr", "dl", "dt", "dd", "figure"};
  return tags;
}

bool hasHiddenContent(const QString& tag) {
  return tag == u"script" || tag == u"style" || tag == u"title";
}

/// Writes the harmless part of the text, tag by tag.
class NotesFilter {
 public:
  explicit NotesFilter(const QString& notes) : notes_(notes.left(maximumLength)) {}

  QString run() {
    while (position_ < notes_.size()) {
      const qsizetype tag = notes_.indexOf(u'<', position_);
      const qsizetype end = tag < 0 ? notes_.size() : tag;
      html_ += QStringView(notes_).mid(position_, end - position_);
      position_ = end;
      if (tag >= 0) takeMarkup();
    }
    return html_;
  }

 private:
  void takeMarkup() {
    if (QStringView(notes_).mid(position_).startsWith(u"<!")) {
      const bool isComment = QStringView(notes_).mid(position_).startsWith(u"<!--");
      return skipBehind(isComment ? QStringLiteral("-->") : QStringLiteral(">"));
    }
    static const QRegularExpression pattern(
        R"re(^<(/?)([A-Za-z][A-Za-z0-9]*+)((?:[^<>"']++|"[^"]*+"|'[^']*+')*+)>)re");
    const auto match = pattern.match(notes_.mid(position_, longestTag));
    if (!match.hasMatch()) {
      html_ += u"&lt;";
      ++position_;
      return;
    }
    position_ += match.capturedEnd();
    const QString tag = match.captured(2).toLower();
    if (match.capturedLength(1) > 0) return close(tag);
    open(tag, match.captured(3));
  }

  void skipBehind(const QString& end) {
    const qsizetype found = notes_.indexOf(end, position_, Qt::CaseInsensitive);
    position_ = found < 0 ? notes_.size() : found + end.size();
  }

  void open(const QString& tag, const QString& attributes) {
    if (hasHiddenContent(tag)) return skipBehind("</" + tag + ">");
    if (tag == u"br" || tag == u"hr") html_ += "<" + tag + ">";
    if (tag == u"p" || breaks().contains(tag)) html_ += u"<p>";
    if (tag == u"td" || tag == u"th") html_ += u' ';
    if (tag == u"li" && isInList()) html_ += u"<li>";
    if (!containers().contains(tag) || open_.size() == maximumListDepth) return;
    const QString link = tag == u"a" ? linkOf(attributes) : QString();
    if (tag == u"a" && link.isEmpty()) return;
    html_ += "<" + tag + link + ">";
    open_ << tag;
  }

  void close(const QString& tag) {
    if (tag == u"p" || breaks().contains(tag)) html_ += u"</p>";
    if (tag == u"li" && isInList()) html_ += u"</li>";
    if (!open_.contains(tag)) return;
    QString closed;
    do {
      closed = open_.takeLast();
      html_ += "</" + closed + ">";
    } while (closed != tag);
  }

  bool isInList() const { return open_.contains("ul") || open_.contains("ol"); }

  /// The attribute as it is to be written; empty when it leads nowhere safe.
  static QString linkOf(const QString& attributes) {
    static const QRegularExpression pattern(R"re(\bhref\s*+=\s*+(?:"([^"]*+)"|'([^']*+)'|([^\s"'>]++)))re",
                                            QRegularExpression::CaseInsensitiveOption);
    const auto match = pattern.match(attributes);
    QString address = match.captured(1) + match.captured(2) + match.captured(3);
    address = address.trimmed().replace(u'"', "&quot;");
    return address.startsWith(u"https://") ? " href=\"" + address + "\"" : QString();
  }

  QString notes_;
  QString html_;
  qsizetype position_ = 0;
  QStringList open_;
};

}  // namespace

QString releaseNotesHtml(const QString& notes) {
  if (!Qt::mightBeRichText(notes))
    return Qt::convertFromPlainText(notes.left(maximumLength), Qt::WhiteSpaceNormal);
  return NotesFilter(notes).run();
}

}  // namespace tessarin::ui
