// What a file dialog tells of each file, in Russian on every machine: the toolkit takes the kind
// and the day from the desktop's language.
#pragma once

#include <QIdentityProxyModel>

namespace kladez::viewer {

class FileColumns : public QIdentityProxyModel {
 public:
  using QIdentityProxyModel::QIdentityProxyModel;

  QVariant data(const QModelIndex& index, int role) const override;
};

}  // namespace kladez::viewer
