#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTextCursor>
#include <algorithm>
#include <cmath>

#include "platform/qt/TestApplication.h"
#include "ui/update/ReleaseNotesHtml.h"
#include "ui/update/ReleaseNotesView.h"

namespace tessarin::ui {
namespace {

TEST(ReleaseNotes, KeepWhatIsHarmless) {
  const std::pair<const char*, const char*> cases[] = {
      {"a < b & \"c\"", "<p>a &lt; b &amp; \"c\"</p>"},
      {"<h2>N</h2><ul><li>a</li><li>b &amp; c</li></ul><p>x<br/>y</p>",
       "<h2>N</h2><ul><li>a</li><li>b &amp; c</li></ul><p>x<br>y</p>"},
      {"<p style='color:black' onclick=\"a>b\">x</p>", "<p>x</p>"},
      {"<p>a</p><script>alert('<p>')</script><style>p{}</style>b", "<p>a</p>b"},
      {"<p>a<!-- <img src=x> -->b<!DOCTYPE x>c", "<p>abc"},
      {"<p>a<img src='https://example.org/x.png'>b</p>", "<p>ab</p>"},
      {"<a href='https://x/?a=1&amp;b=\"2'>x</a>", "<a href=\"https://x/?a=1&amp;b=&quot;2\">x</a>"},
      {"<b>a</b><a href='&#106;avascript:x'>x</a>", "<b>a</b>x"},
      {"<b><i>x</b></i></ul>y", "<b><i>x</i></b>y"},
      {"<p>a</p> 1 < 2 <3", "<p>a</p> 1 &lt; 2 &lt;3"},
      {"<p>a</p><a href='x", "<p>a</p>&lt;a href='x"},
  };
  for (const auto& [given, kept] : cases) EXPECT_EQ(releaseNotesHtml(given).toStdString(), kept) << given;
}

double luminance(const QColor& color) {
  const auto linear = [](float part) { return std::pow(part, 2.2F); };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b) {
  const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
  return (lighter + 0.05) / (darker + 0.05);
}

TEST(ReleaseNotesLinks, CanBeReadOnLightAndDarkGround) {
  testing::ensureApplication();
  for (const QColor ground : {QColor(0xf6, 0xf5, 0xf4), QColor(0x2b, 0x2b, 0x2d)}) {
    QWidget window;
    window.setPalette(QPalette(ground));
    const ReleaseNotesView view("<p><a href='https://x/'>x</a></p>", &window);
    QTextCursor link(view.document());
    link.movePosition(QTextCursor::End);
    ASSERT_TRUE(link.charFormat().isAnchor());
    EXPECT_GT(contrast(link.charFormat().foreground().color(), view.palette().color(QPalette::Base)), 4.5)
        << ground.name().toStdString();
  }
}

TEST(HostileNotes, AreLaidOutAtOnce) {
  testing::ensureApplication();
  for (const char* piece : {"<table><tr><td>", "<ul><li>", "<b>", "<a href='https://x/'>", "<a '", "<",
                            "<!--", "<ul></b>", "<td colspan=20000 rowspan=20000>x", "<hr>"}) {
    QElapsedTimer time;
    time.start();
    ReleaseNotesView view("<p>x</p><ul><li>" + QString(piece).repeated(100000));
    view.resize(400, 200);
    view.grab();
    EXPECT_LT(time.elapsed(), 10000) << piece;
  }
}

}  // namespace
}  // namespace tessarin::ui
