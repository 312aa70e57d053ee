#include "screens/printing/SheetText.h"

#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>

namespace kladez {

SheetText::SheetText(double pitch, QWidget* parent) : QTextEdit(parent), pitch_(pitch) {
  setAcceptRichText(false);
  setTabChangesFocus(true);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  viewport()->setAutoFillBackground(false);
  document()->setDocumentMargin(0);
}

void SheetText::SetText(const QString& text) {
  setPlainText(text);
  QTextBlockFormat format;
  format.setLineHeight(pitch_, QTextBlockFormat::FixedHeight);
  QTextCursor all(document());
  all.select(QTextCursor::Document);
  all.mergeBlockFormat(format);
}

QString SheetText::Text() const { return toPlainText().replace(u'\n', u' '); }

}  // namespace kladez
