#include "ui/controls/RecordList.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>
#include <QStyledItemDelegate>
#include <algorithm>

#include "formats/Ordering.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Look.h"

namespace kladez {

using namespace Qt::StringLiterals;
namespace {

// Up and Down typed in a search field belong to the list.
class PassToList : public QObject {
 public:
  PassToList(QObject* parent, RecordList* list) : QObject(parent), list_(list) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Up || key == Qt::Key_Down) {
        list_->setFocus(Qt::OtherFocusReason);
        return true;
      }
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  RecordList* list_;
};

// Texts of neighbouring columns keep apart, and rows have air for eyes that read them all day.
class RoomyStyle : public QProxyStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    if (metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin) return look::kTight + 1;
    if (metric == PM_FocusFrameVMargin) return look::kTight / 2;
    return QProxyStyle::pixelMetric(metric, option, widget);
  }
};

class RoomyRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index).grownBy({0, 0, 0, look::kTight});
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

RecordList::RecordList(QWidget* parent) : QTreeView(parent) {
  setStyle(ListStyle());
  header()->setStyle(ListStyle());
  setItemDelegate(new RoomyRows(this));
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
  QPalette colors = palette();
  colors.setColor(QPalette::AlternateBase, look::kStripe);
  setPalette(colors);
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

bool RecordList::SelectFirstBeginning(const QString& text) {
  if (model() == nullptr || text.isEmpty()) return false;
  const QString beginning = FoldCase(text);
  for (int row = 0; row < model()->rowCount(); ++row) {
    if (FoldCase(model()->index(row, 0).data().toString()).startsWith(beginning)) {
      SelectRow(row);
      return true;
    }
  }
  return false;
}

void RecordList::SetEmptyText(const QString& text) {
  empty_text_ = text;
  viewport()->update();
}

void RecordList::resizeEvent(QResizeEvent* event) {
  QTreeView::resizeEvent(event);
  FitStretchedColumn();
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
      emit EnterPressed();
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
  if (!command && !event->text().isEmpty() && event->text().front().isPrint()) {
    emit CharacterTyped(event->text());
    return;
  }
  QTreeView::keyPressEvent(event);
}

void RecordList::mouseDoubleClickEvent(QMouseEvent* event) {
  QTreeView::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid()) emit DoubleClicked();
}

void RecordList::paintEvent(QPaintEvent* event) {
  QTreeView::paintEvent(event);
  if (empty_text_.isEmpty() || (model() != nullptr && model()->rowCount() > 0)) return;
  QPainter painter(viewport());
  painter.setPen(look::kQuiet);
  const QRect room = viewport()->rect().adjusted(look::kMargin, look::kMargin, -look::kMargin, 0);
  painter.drawText(room, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, empty_text_);
}

void RecordList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTreeView::currentChanged(current, previous);
  emit CurrentRowChanged(current.isValid() ? current.row() : -1);
}

void WireSearch(TextLine* field, RecordList* list, EmptySearch empty) {
  QObject::connect(field, &TextLine::Change, list, [=] {
    if (!field->text().isEmpty()) {
      list->SelectFirstBeginning(field->text());
    } else if (empty == EmptySearch::kReturnsToList && field->hasFocus()) {
      list->setFocus(Qt::OtherFocusReason);
    }
  });
  QObject::connect(list, &RecordList::CharacterTyped, field, [=](const QString& text) {
    // Emptied without the signal: an empty search would give the focus back at once.
    const bool blocked = field->blockSignals(true);
    field->clear();
    field->blockSignals(blocked);
    field->setFocus(Qt::OtherFocusReason);
    field->insert(text);
  });
  field->installEventFilter(new PassToList(field, list));
}

}  // namespace kladez
