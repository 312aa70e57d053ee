// Pages written out in tests: lines as they stand in the file, and what all pages begin with.
#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QStringList>

#include "formats/TextLines.h"

namespace kladez {

inline QString PageHead(const QString& title) {
  return QStringLiteral(
             "<HTML><HEAD><meta http-equiv=\"Content-Type\" content=\"text/html; "
             "charset=windows-1251\"><TITLE>") +
         title + QStringLiteral("</TITLE></HEAD><BODY BGCOLOR=#ffffff>");
}

inline const QString kLineTable = QStringLiteral(
    "<TABLE style=border-Collapse:Collapse bgcolor=#ffffff bordercolor=#000000 cellspacing=0 "
    "cellpadding=0 BORDER=1 WIDTH=100%>");

// Compares whole bytes; tells the first line that differs.
inline void ExpectPage(const QByteArray& page, const QStringList& lines) {
  if (page == EncodeLines(lines)) return;
  const QStringList got = DecodeLines(page);
  for (qsizetype i = 0; i < std::max(got.size(), lines.size()); ++i) {
    const QString want = lines.value(i, QStringLiteral("<no line>"));
    const QString have = got.value(i, QStringLiteral("<no line>"));
    ASSERT_EQ(have.toStdString(), want.toStdString()) << "in line " << i + 1;
  }
  FAIL() << "the lines are alike, their ends are not";
}

}  // namespace kladez
