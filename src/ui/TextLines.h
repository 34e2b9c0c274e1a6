#pragma once

#include <QFont>
#include <QHash>
#include <QRectF>
#include <QStaticText>
#include <QString>
#include <limits>

class QPainter;

namespace tessarin::ui {

/// Single lines of text, each laid out once: most of them come again with the next letter of a query, and
/// laying out takes longer than drawing.
class TextLines {
 public:
  struct Line {
    QStaticText text;
    double width = 0;  ///< points, whole
  };

  /// The text, cut off with an ellipsis where it would be wider than `most`. Valid until the next call.
  const Line& line(const QFont& font, const QString& text,
                   double most = std::numeric_limits<double>::infinity());
  /// Draws a line in the painter's font and colour from x on, vertically centred.
  static void draw(QPainter& painter, const QRectF& band, double x, const Line& line);

 private:
  struct Key {
    QFont font;
    QString text;
    double most = 0;
    bool operator==(const Key&) const = default;
    friend size_t qHash(const Key& key, size_t seed = 0) {
      return qHashMulti(seed, key.font, key.text, key.most);
    }
  };

  QHash<Key, Line> lines_;
};

}  // namespace tessarin::ui
