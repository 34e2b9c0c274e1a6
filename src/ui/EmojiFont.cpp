#include "ui/EmojiFont.h"

#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include <sys/mman.h>
#include FT_FREETYPE_H

#include <QGlyphRun>
#include <QTextLayout>
#include <algorithm>

#include "ui/EmojiText.h"

namespace tessarin::ui {
namespace {

/// Pixels; of no account for shaping, and for fonts that have outlines instead of pictures.
constexpr int shapedSize = 16;
constexpr FT_UInt outlineSize = 128;
constexpr char16_t emojiPresentation = 0xFE0F;

struct DestroyPattern {
  void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using Pattern = std::unique_ptr<FcPattern, DestroyPattern>;

/// The file of the font that stands for emoji; empty when that is not in colour.
QString findFont() {
  const Pattern wanted(FcPatternCreate());
  FcPatternAddString(wanted.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>("emoji"));
  FcPatternAddBool(wanted.get(), FC_COLOR, FcTrue);
  FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
  FcDefaultSubstitute(wanted.get());
  FcResult result = FcResultNoMatch;
  const Pattern found(FcFontMatch(nullptr, wanted.get(), &result));
  FcBool isInColour = FcFalse;
  FcChar8* path = nullptr;
  if (!found || FcPatternGetBool(found.get(), FC_COLOR, 0, &isInColour) != FcResultMatch || !isInColour ||
      FcPatternGetString(found.get(), FC_FILE, 0, &path) != FcResultMatch)
    return {};
  return QString::fromLocal8Bit(reinterpret_cast<const char*>(path));
}

/// The font's sequences are written without variation selectors.
QString withoutSelectors(const QString& text) {
  return QString(text).remove(emojiPresentation);
}

/// The largest of the sizes that the font has pictures in.
bool selectSize(FT_Face face) {
  if (!FT_HAS_FIXED_SIZES(face)) return FT_Set_Pixel_Sizes(face, 0, outlineSize) == 0;
  FT_Int largest = 0;
  for (FT_Int i = 1; i < face->num_fixed_sizes; ++i) {
    if (face->available_sizes[i].height > face->available_sizes[largest].height) largest = i;
  }
  return FT_Select_Size(face, largest) == 0;
}

}  // namespace

void EmojiFont::Destroy::operator()(FT_LibraryRec_* library) const {
  FT_Done_FreeType(library);
}

void EmojiFont::Destroy::operator()(FT_FaceRec_* face) const {
  FT_Done_Face(face);
}

bool EmojiFont::canDraw(const QString& text) {
  return open() && std::ranges::all_of(charactersOf(text),
                                       [this](const QString& character) { return glyphOf(character) != 0; });
}

QList<QImage> EmojiFont::pictures(const QString& text) {
  if (!open()) return {};
  QList<QImage> found;
  for (const QString& character : charactersOf(text)) {
    const quint32 glyph = glyphOf(character);
    const QImage image = glyph != 0 ? picture(glyph) : QImage();
    if (image.isNull()) return {};
    found << image;
  }
  return found;
}

void EmojiFont::rest() {
  if (bytes_ != nullptr) madvise(bytes_, static_cast<std::size_t>(file_.size()), MADV_DONTNEED);
}

bool EmojiFont::open() {
  if (!isTried_) isOpen_ = mapFile() && openShaper() && openFace();
  isTried_ = true;
  return isOpen_;
}

bool EmojiFont::mapFile() {
  file_.setFileName(findFont());
  if (file_.fileName().isEmpty() || !file_.open(QIODevice::ReadOnly)) return false;
  bytes_ = file_.map(0, file_.size());
  return bytes_ != nullptr;
}

bool EmojiFont::openShaper() {
  shaper_.loadFromData(QByteArray::fromRawData(reinterpret_cast<const char*>(bytes_), file_.size()),
                       shapedSize, QFont::PreferDefaultHinting);
  return shaper_.isValid();
}

bool EmojiFont::openFace() {
  FT_Library library = nullptr;
  if (FT_Init_FreeType(&library) != 0) return false;
  library_.reset(library);
  FT_Face face = nullptr;
  if (FT_New_Memory_Face(library, bytes_, static_cast<FT_Long>(file_.size()), 0, &face) != 0) return false;
  face_.reset(face);
  return selectSize(face);
}

quint32 EmojiFont::glyphOf(const QString& character) const {
  const QString plain = withoutSelectors(character);
  const auto codePoints = plain.toUcs4();
  if (codePoints.size() == 1) return FT_Get_Char_Index(face_.get(), codePoints.first());
  QTextLayout layout(plain);
  layout.setRawFont(shaper_);
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  QList<quint32> glyphs;
  for (const QGlyphRun& run : layout.glyphRuns()) glyphs << run.glyphIndexes();
  return glyphs.size() == 1 ? glyphs.first() : 0;
}

QImage EmojiFont::picture(quint32 glyph) const {
  if (FT_Load_Glyph(face_.get(), glyph, FT_LOAD_COLOR | FT_LOAD_RENDER) != 0) return {};
  const FT_Bitmap& bitmap = face_->glyph->bitmap;
  if (bitmap.pixel_mode != FT_PIXEL_MODE_BGRA || bitmap.pitch <= 0) return {};
  return QImage(bitmap.buffer, static_cast<int>(bitmap.width), static_cast<int>(bitmap.rows), bitmap.pitch,
                QImage::Format_ARGB32_Premultiplied)
      .copy();
}

}  // namespace tessarin::ui
