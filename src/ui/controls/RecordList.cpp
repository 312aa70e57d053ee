#include "ui/controls/RecordList.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMetaMethod>
#include <QPainter>
#include <QPointer>
#include <QToolTip>
#include <algorithm>

#include "ui/base/EdgedStyle.h"
#include "ui/controls/ListRows.h"
#include "ui/controls/ListTable.h"
#include "ui/controls/Look.h"
#include "ui/controls/TypeAhead.h"

namespace kladez {

using namespace Qt::StringLiterals;
namespace {

// Texts of neighbouring columns keep apart, and rows have air for eyes that read them all day.
class RoomyStyle : public look::EdgedStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    if (metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin) return look::kTight + 1;
    if (metric == PM_FocusFrameVMargin) return look::kTight / 2;
    return EdgedStyle::pixelMetric(metric, option, widget);
  }
};

QStyle* ListStyle() {
  static QPointer<QStyle> style;
  if (style.isNull()) {
    style = new RoomyStyle;
    style->setParent(QCoreApplication::instance());
  }
  return style;
}

}  // namespace

RecordList::RecordList(QWidget* parent)
    : QTreeView(parent),
      type_ahead_(new TypeAhead(this, {.names = [this]() -> const NameSearch& { return Names(); },
                                       .current = [this] { return CurrentRow(); },
                                       .select = [this](int row) { SelectRow(row); }})) {
  setStyle(ListStyle());
  header()->setStyle(ListStyle());
  setItemDelegate(new ListRows(this));
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setAlternatingRowColors(true);
  setEditTriggers(NoEditTriggers);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setTextElideMode(Qt::ElideRight);
  setTabKeyNavigation(false);
  look::Paint(this, QPalette::AlternateBase, look::kStripe);
  header()->setSectionsMovable(false);
  header()->setHighlightSections(false);
  header()->setMinimumSectionSize(look::kGrid);
}

void RecordList::SetRecords(RecordModel* model) {
  setModel(model);
  header()->setStretchLastSection(false);
  const auto& columns = model->Columns();
  for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
    setColumnHidden(i, columns[i].twips == 0);
    if (columns[i].stretch) {
      header()->setSectionResizeMode(i, QHeaderView::Stretch);
    } else if (columns[i].twips > 0) {
      // The told widths come from a smaller font: a title or sample must not be cut by them.
      const int sample = columns[i].sample.isEmpty()
                             ? 0
                             : fontMetrics().horizontalAdvance(columns[i].sample) + 2 * look::kGrid;
      const int least = std::max(sample, header()->sectionSizeHint(i));
      setColumnWidth(i, std::max(look::FromTwips(columns[i].twips), least));
    }
  }
  connect(model, &QAbstractItemModel::modelReset, this, [this] { emit CurrentRowChanged(-1); });
  connect(model, &QAbstractItemModel::modelReset, this, &RecordList::TakeModelChange);
  connect(model, &QAbstractItemModel::rowsInserted, this, &RecordList::TakeModelChange);
  connect(model, &QAbstractItemModel::rowsRemoved, this, &RecordList::TakeModelChange);
  connect(model, &QAbstractItemModel::dataChanged, this, &RecordList::TakeModelChange);
  TakeModelChange();
}

void RecordList::TakeModelChange() {
  names_.Clear();
  FitNumbersSoon();
}

RecordModel* RecordList::Records() const { return qobject_cast<RecordModel*>(model()); }

std::vector<int> RecordList::ColumnTwips() const {
  std::vector<int> widths;
  for (int i = 0; i < header()->count(); ++i) widths.push_back(columnWidth(i) * 15);
  return widths;
}

int RecordList::CurrentRow() const {
  const QModelIndex current = currentIndex();
  return current.isValid() && selectionModel()->isRowSelected(current.row(), {}) ? current.row()
                                                                                 : -1;
}

std::vector<int> RecordList::SelectedRows() const {
  std::vector<int> rows;
  if (selectionModel() == nullptr) return rows;
  for (const QModelIndex& index : selectionModel()->selectedRows()) rows.push_back(index.row());
  std::sort(rows.begin(), rows.end());
  return rows;
}

void RecordList::SelectRow(int row) {
  if (model() == nullptr) return;
  if (row < 0 || row >= model()->rowCount()) {
    selectionModel()->clear();
    return;
  }
  const QModelIndex index = model()->index(row, 0);
  selectionModel()->setCurrentIndex(
      index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  scrollTo(index);
}

const NameSearch& RecordList::Names() {
  const int count = model() == nullptr ? 0 : model()->rowCount();
  if (names_.Size() == 0) {
    for (int row = 0; row < count; ++row) names_.Add(model()->index(row, 0).data().toString());
  }
  return names_;
}

bool RecordList::SelectFirst(const QString& text) {
  const int row = Names().First(text);
  if (row >= 0) SelectRow(row);
  return row >= 0;
}

bool RecordList::SelectNext(const QString& text) {
  const int row = Names().Next(text, CurrentRow());
  if (row >= 0) SelectRow(row);
  return row >= 0;
}

void RecordList::SetEmptyText(const QString& text) {
  empty_text_ = text;
  viewport()->update();
}

void RecordList::resizeEvent(QResizeEvent* event) {
  QTreeView::resizeEvent(event);
  FitNumbersSoon();
  FitStretchedColumn();
}

void RecordList::scrollContentsBy(int dx, int dy) {
  QTreeView::scrollContentsBy(dx, dy);
  if (dy != 0) FitNumbersSoon();
}

void RecordList::changeEvent(QEvent* event) {
  QTreeView::changeEvent(event);
  if (event->type() == QEvent::FontChange) FitNumbersSoon();
}

// Once for all that happens in one turn of the event loop.
void RecordList::FitNumbersSoon() {
  if (fit_waits_) return;
  fit_waits_ = true;
  QMetaObject::invokeMethod(this, &RecordList::FitNumbers, Qt::QueuedConnection);
}

void RecordList::FitNumbers() {
  fit_waits_ = false;
  if (Records() == nullptr) return;
  const auto& columns = Records()->Columns();
  bool wider = false;
  for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
    if (!columns[i].number || columns[i].stretch || isColumnHidden(i)) continue;
    const int wanted = NumberWidth(i);
    if (columnWidth(i) >= wanted) continue;
    setColumnWidth(i, wanted);
    wider = true;
  }
  if (wider) FitStretchedColumn();
}

// Of the rows in sight: a hundred thousand rows are not measured for each key.
int RecordList::NumberWidth(int column) const {
  int row = std::max(0, indexAt(QPoint(0, 0)).row());
  const int below = indexAt(viewport()->rect().bottomLeft()).row();
  const int end = below < 0 ? model()->rowCount() : below + 1;
  const QFont plain = look::NumberFont(font());
  QFont bold(plain);
  bold.setBold(true);
  int widest = 0;
  for (; row < end; ++row) {
    const QString text = WithThinGaps(model()->index(row, column).data().toString());
    const QFontMetrics metrics(Records()->IsGroup(row) ? bold : plain);
    widest = std::max(widest, metrics.horizontalAdvance(text));
  }
  const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
  return widest + 2 * margin + 1;
}

bool RecordList::IsCut(const QModelIndex& index) const {
  const QSize wanted = itemDelegateForIndex(index)->sizeHint(ViewOptions(), index);
  return wanted.width() > visualRect(index).width();
}

QStyleOptionViewItem RecordList::ViewOptions() const {
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  return option;
}

bool RecordList::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QTreeView::viewportEvent(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const QModelIndex index = indexAt(help->pos());
  QString text;
  if (index.isValid() && IsCut(index)) text = look::PlainToolTip(index.data().toString());
  QToolTip::showText(help->globalPos(), text, viewport());
  return true;
}

// The column that takes the room left over keeps half of its told width; beyond that the list
// scrolls.
void RecordList::FitStretchedColumn() {
  if (Records() == nullptr) return;
  const auto& columns = Records()->Columns();
  int stretched = -1;
  int room = viewport()->width();
  for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
    if (columns[i].stretch) {
      stretched = i;
    } else if (!isColumnHidden(i)) {
      room -= columnWidth(i);
    }
  }
  if (stretched < 0) return;
  const int least =
      std::max(look::FromTwips(columns[stretched].twips) / 2, header()->sectionSizeHint(stretched));
  const bool fits = room >= least;
  header()->setSectionResizeMode(stretched, fits ? QHeaderView::Stretch : QHeaderView::Interactive);
  if (!fits) header()->resizeSection(stretched, least);
}

void RecordList::showEvent(QShowEvent* event) {
  QTreeView::showEvent(event);
  // A screen reader tells a list by the screen that it fills.
  for (QWidget* screen = parentWidget(); screen != nullptr && accessibleName().isEmpty();
       screen = screen->parentWidget()) {
    if (!screen->windowTitle().isEmpty()) setAccessibleName(u"Список: "_s + screen->windowTitle());
  }
}

void RecordList::keyPressEvent(QKeyEvent* event) {
  if (TakesTableKey(this, *event)) return;  // the toolkit would copy one cell
  const bool command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  switch (event->key()) {
    case Qt::Key_Insert:
      emit InsertPressed();
      return;
    case Qt::Key_Delete:
      emit DeletePressed();
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (command) {
        event->ignore();  // a command of the dialog
      } else {
        emit EnterPressed();
      }
      return;
    case Qt::Key_Escape:
      event->ignore();  // closes the dialog or screen
      return;
    case Qt::Key_Space:
      if (Records() != nullptr && Records()->HasChecks()) {
        QTreeView::keyPressEvent(event);
        return;
      }
      break;
    case Qt::Key_Slash:
      if ((event->modifiers() & Qt::KeypadModifier) &&
          isSignalConnected(QMetaMethod::fromSignal(&RecordList::DividePressed))) {
        emit DividePressed();
        return;
      }
      break;
    default:
      break;
  }
  if (search_field_ != nullptr) {
    if (!command && !event->text().isEmpty() && event->text().front().isPrint()) {
      emit CharacterTyped(event->text());
      return;
    }
  } else if (type_ahead_->Takes(*event)) {
    return;
  }
  QTreeView::keyPressEvent(event);
}

void RecordList::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  menu.addActions(actions());
  AddTableCommands(&menu, this);
  const bool by_key = event->reason() == QContextMenuEvent::Keyboard;
  menu.exec(by_key ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft())
                   : event->globalPos());
}

void RecordList::mouseDoubleClickEvent(QMouseEvent* event) {
  QTreeView::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid()) emit DoubleClicked();
}

void RecordList::paintEvent(QPaintEvent* event) {
  QTreeView::paintEvent(event);
  if (empty_text_.isEmpty() || (model() != nullptr && model()->rowCount() > 0)) return;
  QPainter painter(viewport());
  painter.setPen(QColor(look::kQuiet));
  const QRect room = viewport()->rect().adjusted(look::kMargin, look::kMargin, -look::kMargin, 0);
  painter.drawText(room, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, empty_text_);
}

void RecordList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTreeView::currentChanged(current, previous);
  emit CurrentRowChanged(current.isValid() ? current.row() : -1);
}

}  // namespace kladez
