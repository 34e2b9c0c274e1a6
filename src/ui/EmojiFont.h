#pragma once

#include <QFile>
#include <QImage>
#include <QList>
#include <QRawFont>
#include <QString>
#include <memory>

struct FT_FaceRec_;
struct FT_LibraryRec_;

namespace tessarin::ui {

/// The desktop's colour font, read from its file, which is mapped once. Drawing with the toolkit would keep
/// every picture that was ever drawn.
class EmojiFont {
 public:
  /// Whether there is a colour font and it has one glyph of its own for every character of the text; a
  /// sequence that falls apart into several pictures has not.
  bool canDraw(const QString& text);
  /// One picture for each character, in the size that the font has them in. Empty when one is missing.
  QList<QImage> pictures(const QString& text);
  /// Lets go of the pages of the file that have been read; they are read again when they are needed.
  void rest();

 private:
  struct Destroy {
    void operator()(FT_LibraryRec_* library) const;
    void operator()(FT_FaceRec_* face) const;
  };
  bool open();
  bool mapFile();
  bool openShaper();
  bool openFace();
  /// The one glyph that the font draws for this character; 0 when there is none, or more than one.
  quint32 glyphOf(const QString& character) const;
  QImage picture(quint32 glyph) const;

  bool isTried_ = false;
  bool isOpen_ = false;
  QFile file_;
  uchar* bytes_ = nullptr;  ///< the file, mapped
  QRawFont shaper_;
  std::unique_ptr<FT_LibraryRec_, Destroy> library_;
  std::unique_ptr<FT_FaceRec_, Destroy> face_;
};

}  // namespace tessarin::ui
