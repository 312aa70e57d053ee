// Makes the copies of the time machine: of each Database before the first change of a day, which
// nobody waits for, and before each command that replaces what nobody could type again, which waits
// until its copy is there. No failure of a copy is silent: the first is told, the second asks
// whether to go on.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>

#include "books/copies/CopyJob.h"
#include "books/store/Catalogue.h"
#include "books/store/Clock.h"
#include "books/store/SaveSet.h"
#include "books/store/SettingsStore.h"

namespace kladez {

class CopyKeeper {
 public:
  // All of them outlive it. Copies go to CopiesFolder(data).
  CopyKeeper(const DataDir& data, SettingsStore& settings, const Clock& clock);
  ~CopyKeeper();  // ends what is on its way

  // Answers whether a command goes on though no copy could be made, for the reason given.
  using Question = std::function<bool(const QString& reason)>;
  // Whom to ask from now on. Without anybody, an empty question, no such command goes on.
  void SetQuestion(Question question) { question_ = std::move(question); }

  // Throws WorkCancelled where the answer is no; filesystem_error without a question.
  void BeforeSave(const SaveSet& save);
  // A copy of a Database now, `why` being told in its note: "по просьбе". Waits for it. Throws
  // filesystem_error.
  void Make(const CatalogueEntry& base, const QString& why);
  // Until the copy that is on its way is there, or is told to have failed.
  void Wait();

  // Room for all copies together, in megabytes; 0 or what is no number counts as the usual room.
  int Room() const;
  // "Второе место для копий … не было видно 9 дней …", empty where there is nothing to say. A week
  // is the most that it may be out of sight.
  QString SecondPlaceAdvice() const;
  void SetSecondPlace(const QString& folder);  // empty for none

 private:
  std::vector<CatalogueEntry> Changed(const SaveSet& save) const;
  bool IsDue(const QString& base);
  void Start(const CatalogueEntry& base, const QString& why);
  void StartFirstOfDay(const CatalogueEntry& base);
  void MakeOrAsk(const CatalogueEntry& base, const QString& why);
  void End();
  void Collect();

  const DataDir& data_;
  SettingsStore& settings_;
  const Clock& clock_;
  Question question_;
  std::unique_ptr<CopyJob> job_;
  QString job_base_;
  std::map<QString, QDate> copied_;        // the last day of which each Database has a copy
  std::map<QString, QDateTime> next_try_;  // after one that failed
};

}  // namespace kladez
