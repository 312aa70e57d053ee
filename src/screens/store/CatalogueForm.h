// What the two small screens over the catalogue share, the one that makes a Database and the one
// that picks the source of an import: the list of Databases, the field "Имя базы данных:", a
// command and "Отмена".
#pragma once

#include <QDialog>
#include <optional>

#include "ui/AppContext.h"

class QPushButton;

namespace kladez {

class CatalogueHost;
class CatalogueList;
class TextLine;

class CatalogueForm : public QDialog {
  Q_OBJECT

 public:
  void reject() override;  // "Отмена", Escape

 protected:
  struct Texts {
    QString name;  // of the screen
    QString title;
    QString caption;  // of the field, with its letter
    QString command;
    QString empty;  // what an empty list says
  };
  // `row_of` makes a row of the position that the settings keep, and of the number of rows.
  CatalogueForm(AppContext& context, CatalogueHost& host, const Texts& texts,
                int (*row_of)(int position, int count), QWidget* parent);

  void closeEvent(QCloseEvent* event) override;  // its frame

  virtual void Act() = 0;
  // The position that the settings keep of it, from 1; nothing where that of before stays.
  virtual std::optional<int> Position() const = 0;
  // "Отмена" with no Database left in the list.
  virtual void LeaveEmpty() = 0;

  void WriteChoice();

  AppContext& context_;
  CatalogueHost& host_;
  CatalogueList* list_;
  TextLine* name_;  // "Имя базы данных:"
  QPushButton* command_;
};

}  // namespace kladez
