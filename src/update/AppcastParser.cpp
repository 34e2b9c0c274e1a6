#include "update/AppcastParser.h"

#include <QString>
#include <QStringDecoder>
#include <QXmlStreamReader>
#include <algorithm>
#include <array>
#include <string>

#include "base/DataError.h"

namespace tessarin {
namespace {

constexpr int maximumDepth = 32;
constexpr std::size_t maximumItems = 1000;
/// The reader compares every attribute of a tag with every other one.
constexpr int maximumAttributes = 1000;

constexpr int rootDepth = 1;
constexpr int channelDepth = 2;
constexpr int itemDepth = 3;
constexpr int fieldDepth = 4;

struct Field {
  const char* name;
  bool isExtension;  ///< is not of RSS itself, so it stands in a namespace
  std::string AppcastItem::*value;
};

constexpr std::array fields = {
    Field{"title", false, &AppcastItem::title},
    Field{"link", false, &AppcastItem::link},
    Field{"description", false, &AppcastItem::notes},
    Field{"pubDate", false, &AppcastItem::publicationDate},
    Field{"version", true, &AppcastItem::version},
    Field{"shortVersionString", true, &AppcastItem::shortVersion},
    Field{"minimumSystemVersion", true, &AppcastItem::minimumSystemVersion},
    Field{"channel", true, &AppcastItem::channel},
};

const Field* fieldNamed(QStringView name, bool isExtension) {
  const auto found = std::find_if(fields.begin(), fields.end(), [&](const Field& field) {
    return field.isExtension == isExtension && name == QLatin1StringView(field.name);
  });
  return found == fields.end() ? nullptr : &*found;
}

/// The reader's own wording quotes the feed, line feeds and all, which would forge lines of the log.
const char* description(QXmlStreamReader::Error error) {
  return error == QXmlStreamReader::PrematureEndOfDocumentError ? "the feed ends too early"
                                                                : "the feed is not well-formed";
}

QString decoded(std::string_view bytes) {
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  QString text = decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
  if (decoder.hasError()) throw DataError("the feed is not UTF-8");
  return text;
}

void requireFewAttributes(QStringView text) {
  int count = 0;
  for (const QChar c : text) {
    if (c == u'<') count = 0;
    if (c == u'=' && ++count > maximumAttributes)
      throw DataError("a tag of the feed has too many attributes");
  }
}

/// Walks through the document once. Where it is follows from the depth alone, as everything that is not on
/// the way to a release's fields is passed over.
class AppcastReader {
 public:
  explicit AppcastReader(const QString& text) : xml_(text) {}

  Appcast read() {
    while (!xml_.atEnd()) take(xml_.readNext());
    if (xml_.hasError()) fail(description(xml_.error()));
    return std::move(appcast_);
  }

 private:
  void take(QXmlStreamReader::TokenType token) {
    switch (token) {
      case QXmlStreamReader::StartDocument:
        return requireUtf8();
      case QXmlStreamReader::DTD:
        return fail("a document type is declared");
      case QXmlStreamReader::EntityReference:
        return fail("an unknown entity is used");
      case QXmlStreamReader::StartElement:
        return enter();
      case QXmlStreamReader::EndElement:
        return leave();
      case QXmlStreamReader::Characters:
        if (field_ != nullptr) text_ += xml_.text();
        return;
      default:
        return;
    }
  }

  void requireUtf8() {
    const QStringView encoding = xml_.documentEncoding();
    if (!encoding.isEmpty() && encoding.compare(u"UTF-8", Qt::CaseInsensitive) != 0) {
      fail("another encoding than UTF-8 is declared");
    }
  }

  void enter() {
    if (++depth_ > maximumDepth) fail("the elements are nested too deeply");
    if (depth_ == rootDepth && !isRss(u"rss")) fail("this is no feed");
    if (depth_ == channelDepth) isInChannel_ = isRss(u"channel");
    if (depth_ == itemDepth && isInChannel_ && isRss(u"item")) beginItem();
    if (depth_ == fieldDepth && isInItem_) beginField();
  }

  void leave() {
    if (depth_ == fieldDepth && field_ != nullptr) endField();
    if (depth_ == itemDepth) isInItem_ = false;
    --depth_;
  }

  void beginItem() {
    if (appcast_.items.size() == maximumItems) fail("there are too many releases");
    appcast_.items.emplace_back();
    isInItem_ = true;
    hasDownload_ = false;
  }

  void beginField() {
    text_.clear();
    field_ = fieldNamed(xml_.name(), !xml_.namespaceUri().isEmpty());
    if (isRss(u"enclosure") && !hasDownload_) readDownload();
  }

  void endField() {
    store(item().*(field_->value), text_);
    field_ = nullptr;
  }

  void readDownload() {
    hasDownload_ = true;
    const QXmlStreamAttributes attributes = xml_.attributes();
    item().downloadUrl = attributes.value(QLatin1StringView("url")).trimmed().toString().toStdString();
    item().downloadType = attributes.value(QLatin1StringView("type")).trimmed().toString().toStdString();
    item().downloadLength = std::max(attributes.value(QLatin1StringView("length")).toLongLong(), 0LL);
    for (const QXmlStreamAttribute& attribute : attributes) readExtension(attribute);
  }

  void readExtension(const QXmlStreamAttribute& attribute) {
    if (attribute.namespaceUri().isEmpty()) return;
    if (attribute.name() == u"os") store(item().operatingSystem, attribute.value());
    const Field* field = fieldNamed(attribute.name(), true);
    if (field != nullptr) store(item().*(field->value), attribute.value());
  }

  /// An element may come before or after the attribute of the same name; the first one that says something
  /// counts.
  static void store(std::string& value, QStringView text) {
    if (value.empty()) value = text.trimmed().toString().toStdString();
  }

  bool isRss(QStringView name) const { return xml_.name() == name && xml_.namespaceUri().isEmpty(); }
  AppcastItem& item() { return appcast_.items.back(); }

  [[noreturn]] void fail(const std::string& what) const {
    throw DataError("line " + std::to_string(xml_.lineNumber()) + ": " + what);
  }

  QXmlStreamReader xml_;
  Appcast appcast_;
  int depth_ = 0;
  bool isInChannel_ = false;
  bool isInItem_ = false;
  bool hasDownload_ = false;
  const Field* field_ = nullptr;
  QString text_;
};

}  // namespace

Appcast parseAppcast(std::string_view bytes) {
  if (bytes.size() > maximumAppcastSize) throw DataError("the feed is too large");
  const QString text = decoded(bytes);
  requireFewAttributes(text);
  return AppcastReader(text).read();
}

}  // namespace tessarin
