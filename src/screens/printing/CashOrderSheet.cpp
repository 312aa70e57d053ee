#include "screens/printing/CashOrderSheet.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr double kTearX = 130;  // between the order and the receipt
constexpr double kMmOfPoint = 25.4 / 72;
constexpr double kShrinkBy = 0.5;  // points, for a text too long for its place
constexpr double kLeastPoints = 3;
constexpr double kLineMm = 0.2;
constexpr double kFrameMm = 0.4;  // around what is filled in

enum class Side { kLeft, kCentre, kRight };

struct SheetCaption {
  QRectF place;
  QStringView text;
  double points = 7;
  Side side = Side::kLeft;
  bool bold = false;
};

// Captions of the lines to sign stand under them.
constexpr double kSmall = 5.5;

constexpr std::array kCaptions = {
    SheetCaption{{60, 0, 66, 3}, u"Форма № КО-1", 6.5, Side::kRight},
    SheetCaption{{60, 3, 66, 3}, u"Утверждена постановлением Госкомстата", 6, Side::kRight},
    SheetCaption{{60, 6, 66, 3}, u"России от 18.08.98 г. № 88", 6, Side::kRight},
    SheetCaption{{106, 10.5, 20, 4}, u"Код", 7, Side::kCentre},
    SheetCaption{{76, 14.5, 29, 5}, u"Форма по ОКУД", 7, Side::kRight},
    SheetCaption{{90, 19.5, 15, 5}, u"по ОКПО", 7, Side::kRight},
    SheetCaption{{0, 24.5, 88, 3}, u"предприятие, организация", kSmall, Side::kCentre},
    SheetCaption{{0, 33, 104, 3}, u"структурное подразделение", kSmall, Side::kCentre},
    SheetCaption{{76, 37, 25, 4}, u"Номер документа", 6.5, Side::kCentre},
    SheetCaption{{101, 37, 25, 4}, u"Дата составления", 6.5, Side::kCentre},
    SheetCaption{{0, 40, 74, 7}, u"ПРИХОДНЫЙ КАССОВЫЙ ОРДЕР", 11, Side::kLeft, true},
    // Heads of the table.
    SheetCaption{{0, 50, 16, 18}, u"Дебет", 7, Side::kCentre},
    SheetCaption{{16, 50, 56, 4}, u"Кредит", 7, Side::kCentre},
    SheetCaption{{22, 54.5, 16, 4}, u"код структур-", 6, Side::kCentre},
    SheetCaption{{22, 58, 16, 4}, u"ного подраз-", 6, Side::kCentre},
    SheetCaption{{22, 61.5, 16, 4}, u"деления", 6, Side::kCentre},
    SheetCaption{{38, 54.5, 18, 4}, u"корреспонди-", 6, Side::kCentre},
    SheetCaption{{38, 58, 18, 4}, u"рующий счет,", 6, Side::kCentre},
    SheetCaption{{38, 61.5, 18, 4}, u"субсчет", 6, Side::kCentre},
    SheetCaption{{56, 54, 16, 3.5}, u"Код", 6, Side::kCentre},
    SheetCaption{{56, 57.3, 16, 3.5}, u"анали-", 6, Side::kCentre},
    SheetCaption{{56, 60.6, 16, 3.5}, u"тического", 6, Side::kCentre},
    SheetCaption{{56, 63.9, 16, 3.5}, u"учета", 6, Side::kCentre},
    SheetCaption{{72, 50, 22, 18}, u"Сумма, руб, коп", 7, Side::kCentre},
    SheetCaption{{94, 52, 18, 3.5}, u"Код", 6, Side::kCentre},
    SheetCaption{{94, 55.4, 18, 3.5}, u"целевого", 6, Side::kCentre},
    SheetCaption{{94, 58.8, 18, 3.5}, u"назначе- ", 6, Side::kCentre},
    SheetCaption{{94, 62.2, 18, 3.5}, u"ния", 6, Side::kCentre},
    // The text of the order.
    SheetCaption{{0, 79, 24, 5}, u"Принято от :", 8},
    SheetCaption{{0, 86, 24, 5}, u"Основание :", 8},
    SheetCaption{{0, 93, 24, 5}, u"Сумма :", 8},
    SheetCaption{{0, 105, 24, 5}, u"В том числе :", 8},
    SheetCaption{{0, 112, 24, 5}, u"Приложение", 8},
    SheetCaption{{0, 119, 32, 5}, u"Главный бухгалтер", 8, Side::kLeft, true},
    SheetCaption{{34, 124, 30, 3}, u"подпись", kSmall, Side::kCentre},
    SheetCaption{{68, 124, 58, 3}, u"расшифровка подписи", kSmall, Side::kCentre},
    SheetCaption{{0, 129, 32, 5}, u"Получил кассир", 8, Side::kLeft, true},
    SheetCaption{{34, 134, 30, 3}, u"подпись", kSmall, Side::kCentre},
    SheetCaption{{68, 134, 58, 3}, u"расшифровка подписи", kSmall, Side::kCentre},
    // The receipt.
    SheetCaption{{134, 10, 64, 3}, u"предприятие, организация", kSmall, Side::kCentre},
    SheetCaption{{134, 15, 64, 6}, u"КВИТАНЦИЯ", 11, Side::kCentre, true},
    SheetCaption{{134, 21, 64, 4}, u"к приходному кассовому", 8, Side::kCentre},
    SheetCaption{{134, 26, 18, 5}, u"ордеру №", 8},
    SheetCaption{{171, 26, 5, 5}, u"от", 8, Side::kCentre},
    SheetCaption{{134, 34, 64, 4}, u"Принято от :", 8},
    SheetCaption{{134, 49, 64, 4}, u"Основание:", 8},
    SheetCaption{{134, 61, 18, 5}, u"Сумма :", 8},
    SheetCaption{{134, 83, 64, 4}, u"В том числе :", 8},
    SheetCaption{{134, 100, 64, 4}, u"М.П. (штампа)", 8},
    SheetCaption{{134, 112, 28, 5}, u"Главный бухгалтер", 7, Side::kLeft, true},
    SheetCaption{{161, 117, 13, 3}, u"подпись", kSmall, Side::kCentre},
    SheetCaption{{176, 117, 22, 3}, u"расшифровка подписи", kSmall, Side::kCentre},
    SheetCaption{{134, 125, 28, 5}, u"Кассир", 7, Side::kLeft, true},
    SheetCaption{{161, 130, 13, 3}, u"подпись", kSmall, Side::kCentre},
    SheetCaption{{176, 130, 22, 3}, u"расшифровка подписи", kSmall, Side::kCentre},
};

// What is written on: its left end, its right end and its height.
struct Rule {
  double left, right, y;
};

constexpr std::array kRules = {
    Rule{0, 88, 24.5},   Rule{0, 104, 33},     Rule{24, 126, 84},   Rule{24, 126, 91},
    Rule{24, 126, 98.2}, Rule{24, 126, 103.4}, Rule{24, 126, 110},  Rule{24, 126, 117},
    Rule{34, 64, 124},   Rule{68, 126, 124},   Rule{34, 64, 134},   Rule{68, 126, 134},
    Rule{134, 198, 5},   Rule{134, 198, 10},   Rule{152, 170, 31},  Rule{176, 198, 31},
    Rule{134, 198, 43},  Rule{134, 198, 48},   Rule{134, 198, 59},  Rule{152, 198, 66},
    Rule{134, 198, 71},  Rule{134, 198, 76},   Rule{134, 198, 81},  Rule{134, 198, 92},
    Rule{134, 198, 97},  Rule{162, 174, 117},  Rule{176, 198, 117}, Rule{162, 174, 130},
    Rule{176, 198, 130},
};

constexpr std::array kBoxes = {
    QRectF{106, 10.5, 20, 4},                          // "Код"
    QRectF{76, 37, 25, 4},    QRectF{101, 37, 25, 4},  // number, date
    QRectF{0, 50, 16, 18},    QRectF{16, 50, 56, 4},  QRectF{16, 54, 6, 14},
    QRectF{22, 54, 16, 14},   QRectF{38, 54, 18, 14}, QRectF{56, 54, 16, 14},
    QRectF{72, 50, 22, 18},   QRectF{94, 50, 18, 18}, QRectF{112, 50, 14, 18},
};

// Boxes that are filled in.
constexpr std::array kFrames = {
    QRectF{106, 14.5, 20, 5}, QRectF{106, 19.5, 20, 5}, QRectF{106, 24.5, 20, 8.5},
    QRectF{76, 41, 25, 6},    QRectF{101, 41, 25, 6},   QRectF{0, 68, 16, 7},
    QRectF{16, 68, 6, 7},     QRectF{22, 68, 16, 7},    QRectF{38, 68, 18, 7},
    QRectF{56, 68, 16, 7},    QRectF{72, 68, 22, 7},    QRectF{94, 68, 18, 7},
    QRectF{112, 68, 14, 7},
};

constexpr std::array kFields = {
    SheetField{u"Text15", u"Предприятие", {0, 18.5, 88, 5.7}, 9, false, 0, &CashOrder::firm},
    SheetField{u"CodeOkud", u"Форма по ОКУД", {106.5, 15, 19, 4}, 8, true},
    SheetField{u"CodeOkpo", u"по ОКПО", {106.5, 20, 19, 4}, 8, true},
    SheetField{u"Department", u"Структурное подразделение", {0, 27.5, 104, 5.2}},
    SheetField{u"CodeDepartment", u"Код подразделения", {106.5, 25.5, 19, 6.5}, 8, true},
    SheetField{u"Text5", u"Номер документа", {76.5, 41.5, 24, 5}, 9, true, 0, &CashOrder::number},
    SheetField{u"Text6", u"Дата составления", {101.5, 41.5, 24, 5}, 9, true, 0, &CashOrder::date},
    SheetField{u"Debit", u"Дебет", {0.5, 68.5, 15, 6}, 8, true},
    SheetField{u"Credit", u"Кредит", {16.4, 68.5, 5.2, 6}, 8, true},
    SheetField{
        u"CreditDepartment", u"Код структурного подразделения", {22.5, 68.5, 15, 6}, 8, true},
    SheetField{u"CreditAccount", u"Корреспондирующий счет", {38.5, 68.5, 17, 6}, 8, true},
    SheetField{u"CreditAnalytic", u"Код аналитического учета", {56.5, 68.5, 15, 6}, 8, true},
    SheetField{u"Text12", u"Сумма", {72.5, 68.5, 21, 6}, 8.5, true, 0, &CashOrder::sum},
    SheetField{u"Purpose", u"Код целевого назначения", {94.5, 68.5, 17, 6}, 8, true},
    SheetField{u"Spare", u"Резерв", {112.5, 68.5, 13, 6}, 8, true},
    SheetField{u"Text1", u"Принято от", {24, 79, 102, 4.8}, 8.5, false, 0, &CashOrder::payer},
    SheetField{u"Text16", u"Основание", {24, 86, 102, 4.8}, 8.5, false, 0, &CashOrder::grounds},
    SheetField{
        u"Words", u"Сумма прописью", {24, 93, 102, 10.4}, 8.5, false, 5.2, &CashOrder::words},
    SheetField{
        u"Included", u"В том числе", {24, 105, 102, 4.8}, 8.5, false, 0, &CashOrder::included},
    SheetField{u"Enclosure", u"Приложение", {24, 112, 102, 4.8}},
    SheetField{u"Accountant", u"Главный бухгалтер", {68, 119, 58, 4.8}},
    SheetField{u"Cashier", u"Получил кассир", {68, 129, 58, 4.8}},
    SheetField{
        u"Text25", u"Предприятие на квитанции", {134, 0, 64, 10}, 8.5, false, 5, &CashOrder::firm},
    SheetField{u"ReceiptNumber",
               u"Номер ордера на квитанции",
               {152, 26, 18, 4.8},
               8.5,
               true,
               0,
               &CashOrder::number},
    SheetField{
        u"ReceiptDate", u"Дата на квитанции", {176, 26, 22, 4.8}, 8.5, true, 0, &CashOrder::date},
    SheetField{u"Text24",
               u"Принято от, на квитанции",
               {134, 38, 64, 10},
               8.5,
               false,
               5,
               &CashOrder::payer},
    SheetField{u"ReceiptGrounds",
               u"Основание на квитанции",
               {134, 54, 64, 4.8},
               8.5,
               false,
               0,
               &CashOrder::grounds},
    SheetField{
        u"ReceiptSum", u"Сумма на квитанции", {152, 61, 46, 4.8}, 8.5, false, 0, &CashOrder::sum},
    SheetField{u"ReceiptWords",
               u"Сумма прописью на квитанции",
               {134, 66, 64, 15},
               8.5,
               false,
               5,
               &CashOrder::words},
    SheetField{u"ReceiptIncluded",
               u"В том числе, на квитанции",
               {134, 87, 64, 10},
               8.5,
               false,
               5,
               &CashOrder::included},
    SheetField{u"ReceiptAccountant", u"Главный бухгалтер на квитанции", {176, 112, 22, 4.8}, 7},
    SheetField{u"ReceiptCashier", u"Кассир на квитанции", {176, 125, 22, 4.8}, 7},
};

int FlagsOf(Side side) {
  switch (side) {
    case Side::kCentre:
      return Qt::AlignHCenter | Qt::AlignVCenter;
    case Side::kRight:
      return Qt::AlignRight | Qt::AlignVCenter;
    default:
      return Qt::AlignLeft | Qt::AlignVCenter;
  }
}

QPen PenOf(const SheetScale& scale, double mm) {
  QPen pen(Qt::black, std::max(1.0, mm * scale.Units()));
  pen.setJoinStyle(Qt::MiterJoin);
  return pen;
}

// The text broken at its blanks into lines of the width; a longer word has a line of its own.
std::vector<QString> LinesOf(const QString& text, const QFontMetrics& metrics, double width) {
  std::vector<QString> lines;
  for (const QString& word : text.split(u' ')) {
    const QString longer = lines.empty() ? word : QString(lines.back() + u' ' + word);
    if (!lines.empty() && metrics.horizontalAdvance(longer) <= width) {
      lines.back() = longer;
    } else {
      lines.push_back(word);
    }
  }
  return lines;
}

bool Fits(const std::vector<QString>& lines, const QFontMetrics& metrics, double width,
          size_t room) {
  return lines.size() <= room && std::all_of(lines.begin(), lines.end(), [&](const QString& line) {
           return metrics.horizontalAdvance(line) <= width;
         });
}

void PaintTearLine(QPainter& painter, const SheetScale& scale) {
  QPen pen = PenOf(scale, kLineMm);
  pen.setStyle(Qt::DashLine);
  painter.setPen(pen);
  painter.drawLine(scale.Map(QLineF(kTearX, 0, kTearX, kSheetSize.height())));
  painter.save();
  painter.translate(scale.Map(QPointF(kTearX + 1, kSheetSize.height() / 2)));
  painter.rotate(-90);
  painter.setFont(scale.Font(kSmall));
  const double length = 40 * scale.Units();
  painter.drawText(QRectF(-length / 2, 0, length, 3 * scale.Units()), Qt::AlignCenter,
                   u"линия отреза"_s);
  painter.restore();
}

}  // namespace

std::span<const SheetField> SheetFields() { return kFields; }

QRectF SheetScale::Map(const QRectF& place) const {
  return {Map(place.topLeft()), place.size() * units_};
}

QFont SheetScale::Font(double points, bool bold) const {
  QFont font(u"Arial"_s);
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * kMmOfPoint * units_))));
  font.setBold(bold);
  return font;
}

void PaintSheet(QPainter& painter, const SheetScale& scale) {
  painter.setPen(PenOf(scale, kLineMm));
  for (const Rule& rule : kRules) {
    painter.drawLine(scale.Map(QLineF(rule.left, rule.y, rule.right, rule.y)));
  }
  for (const QRectF& box : kBoxes) painter.drawRect(scale.Map(box));
  painter.setPen(PenOf(scale, kFrameMm));
  for (const QRectF& frame : kFrames) painter.drawRect(scale.Map(frame));
  painter.setPen(Qt::black);
  for (const SheetCaption& caption : kCaptions) {
    painter.setFont(scale.Font(caption.points, caption.bold));
    painter.drawText(scale.Map(caption.place), FlagsOf(caption.side) | Qt::TextDontClip,
                     caption.text.toString());
  }
  PaintTearLine(painter, scale);
}

void PaintSheetTexts(QPainter& painter, const SheetScale& scale, const SheetTexts& texts) {
  painter.setPen(Qt::black);
  for (const SheetField& field : kFields) {
    const QString text = texts.value(field.name.toString());
    if (text.isEmpty()) continue;
    const QRectF place = scale.Map(field.place);
    const double pitch = field.pitch > 0 ? field.pitch * scale.Units() : place.height();
    const auto room = static_cast<size_t>(std::lround(place.height() / pitch));
    std::vector<QString> lines;
    for (double points = field.points;; points -= kShrinkBy) {
      painter.setFont(scale.Font(points));
      lines = LinesOf(text, painter.fontMetrics(), place.width());
      if (points <= kLeastPoints || Fits(lines, painter.fontMetrics(), place.width(), room)) break;
    }
    const int flags = (field.centred ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter;
    for (size_t i = 0; i < lines.size(); ++i) {
      const QRectF line(place.left(), place.top() + i * pitch, place.width(), pitch);
      painter.drawText(line, flags | Qt::TextDontClip, lines[i]);
    }
  }
}

void PaintCashOrder(QPainter& painter, const QRectF& page, double units_per_mm,
                    const SheetTexts& texts) {
  const double units = std::min(
      {units_per_mm, page.width() / kSheetSize.width(), page.height() / kSheetSize.height()});
  const SheetScale scale(page.topLeft(), units);
  PaintSheet(painter, scale);
  PaintSheetTexts(painter, scale, texts);
}

}  // namespace kladez
