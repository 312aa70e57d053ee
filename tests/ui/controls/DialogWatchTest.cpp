#include <gtest/gtest-spi.h>

#include <QMessageBox>

#include "DialogWatch.h"

namespace kladez {
namespace {

TEST(DialogWatch, ADialogThatNobodyAnswersFailsTheTestAndIsClosed) {
  const DialogWatch watch(100);
  EXPECT_NONFATAL_FAILURE(
      QMessageBox::information(nullptr, QStringLiteral("Внимание!"), QStringLiteral("Диск полон")),
      "Диск полон");
}

}  // namespace
}  // namespace kladez
