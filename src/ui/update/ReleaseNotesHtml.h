#pragma once

#include <QString>

namespace tessarin::ui {

/// What of a release's notes, plain text or HTML, can be shown without harm: text, headings, paragraphs,
/// lists, emphasis and links to HTTPS addresses, nested and long within bounds. Laying out HTML from the
/// network as it comes could take for ever (tables in tables do), fetch things, or set colours that cannot be
/// read on ours.
QString releaseNotesHtml(const QString& notes);

}  // namespace tessarin::ui
