#include "books/copies/CopyKeeper.h"

#include <QFileInfo>
#include <algorithm>

#include "books/copies/CopyFolder.h"
#include "books/store/Errors.h"
#include "books/store/Notes.h"
#include "formats/DatabaseFiles.h"
#include "formats/Ordering.h"
#include "formats/Progress.h"
#include "system/PathNames.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using Kind = SaveSet::Kind;

constexpr int kPatienceDays = 7;
constexpr int kMinutesToNextTry = 10;
constexpr qint64 kMegabyte = 1 << 20;

// The first part of a path below the data directory.
QString TopOf(const QByteArray& path, const QString& root) {
  const QString inner = DecodePath(path).mid(root.size() + 1);
  return inner.left(inner.indexOf(u'/'));
}

bool TakesTreesAway(const SaveSet& save) {
  return std::any_of(save.Changes().begin(), save.Changes().end(), [](const auto& change) {
    return change.kind == Kind::kDeleteTree || change.kind == Kind::kRename;
  });
}

}  // namespace

CopyKeeper::CopyKeeper(const DataDir& data, SettingsStore& settings, const Clock& clock)
    : data_(data), settings_(settings), clock_(clock) {}

CopyKeeper::~CopyKeeper() = default;

// The Databases that the save changes and that are there already.
std::vector<CatalogueEntry> CopyKeeper::Changed(const SaveSet& save) const {
  std::set<QString> tops;
  for (const SaveSet::Change& change : save.Changes()) {
    tops.insert(FoldCase(TopOf(change.path, data_.Root())));
  }
  std::vector<CatalogueEntry> bases = ListDatabases(data_);
  std::erase_if(bases, [&](const CatalogueEntry& base) {
    const QString& path = base.descriptor.path;
    if (!IsPlainTreePath(path) || !data_.DirectoryExists(path)) return true;
    return !tops.contains(FoldCase(base.file)) && !tops.contains(FoldCase(path.chopped(1)));
  });
  return bases;
}

void CopyKeeper::BeforeSave(const SaveSet& save) {
  if (job_ && job_->IsOver()) Collect();
  for (const CatalogueEntry& base : Changed(save)) {
    if (save.NeedsCopy()) {
      MakeOrAsk(base, u"перед командой «%1»"_s.arg(save.What()));
    } else if (IsDue(base.descriptor.path.chopped(1))) {
      StartFirstOfDay(base);
    }
  }
  if (!job_) return;
  // Whole directories are not handed over.
  if (TakesTreesAway(save)) {
    Wait();
    return;
  }
  for (const SaveSet::Change& change : save.Changes()) job_->Keep(change.path);
}

bool CopyKeeper::IsDue(const QString& base) {
  const QDateTime now = clock_.Now();
  if (const auto known = copied_.find(base); known != copied_.end()) {
    if (known->second == now.date()) return false;
  }
  if (const auto next = next_try_.find(base); next != next_try_.end()) {
    if (now < next->second && now.date() == next->second.date()) return false;
  }
  bool there = false;
  IgnoreErrors([&] {
    for (const StoredCopy& copy : ListCopies(CopiesFolder(data_))) {
      there = there || (copy.note.base == base && copy.note.time.date() == now.date());
    }
  });
  if (there) copied_[base] = now.date();
  return !there;
}

void CopyKeeper::Start(const CatalogueEntry& base, const QString& why) {
  Wait();  // one at a time
  const QString tree = QFileInfo(data_.Resolve(base.descriptor.path)).fileName();
  job_base_ = base.descriptor.path.chopped(1);
  job_ = std::make_unique<CopyJob>(CopyJob::Order{
      .root = EncodePath(data_.Root()),
      .tree = EncodePath(tree),
      .descriptor = EncodePath(QFileInfo(data_.Resolve(base.file)).fileName()),
      .folder = CopiesFolder(data_),
      .second = EncodePath(settings_.Read(settings::kSecondPlace)),
      .room = Room() * kMegabyte,
      .note = {.base = job_base_, .name = base.descriptor.name, .time = clock_.Now(), .why = why}});
  copied_[job_base_] = clock_.Today();
}

void CopyKeeper::StartFirstOfDay(const CatalogueEntry& base) {
  try {
    Start(base, u"перед первым изменением дня"_s);
  } catch (const std::system_error& error) {
    next_try_[base.descriptor.path.chopped(1)] = clock_.Now().addSecs(60 * kMinutesToNextTry);
    AddNote(
        u"Копия базы не сделана. Команда записана, но вернуться к сегодняшнему утру будет "
        u"нельзя\n"_s +
        ErrorText(error));
  }
}

void CopyKeeper::Make(const CatalogueEntry& base, const QString& why) {
  RequirePlainPath(data_, base);
  Start(base, why);
  End();
}

// Throws what made the copy fail.
void CopyKeeper::End() {
  const std::unique_ptr<CopyJob> job = std::move(job_);
  try {
    job->Wait();
  } catch (...) {
    copied_.erase(job_base_);
    throw;
  }
  if (job->ReachedSecondPlace()) {
    settings_.Write(settings::kSecondSeen, clock_.Today().toString(Qt::ISODate));
  }
  if (!job->SecondPlaceFault().isEmpty()) AddNote(job->SecondPlaceFault());
}

void CopyKeeper::MakeOrAsk(const CatalogueEntry& base, const QString& why) {
  try {
    Make(base, why);
  } catch (const std::system_error& error) {
    if (!question_) throw;
    if (!question_(ErrorText(error))) throw WorkCancelled();
  }
}

void CopyKeeper::Wait() {
  if (job_) Collect();
}

// The end of a copy that nobody waited for.
void CopyKeeper::Collect() {
  try {
    End();
  } catch (const std::system_error& error) {
    next_try_[job_base_] = clock_.Now().addSecs(60 * kMinutesToNextTry);
    AddNote(u"Копия базы перед первым изменением дня не сделана\n"_s + ErrorText(error));
  }
}

int CopyKeeper::Room() const {
  constexpr int kUsual = 500;
  const int room = settings_.ReadInt(settings::kCopyRoom);
  return room > 0 ? room : kUsual;
}

QString CopyKeeper::SecondPlaceAdvice() const {
  const QString place = settings_.Read(settings::kSecondPlace);
  if (place.isEmpty()) return {};
  const QDate seen = QDate::fromString(settings_.Read(settings::kSecondSeen), Qt::ISODate);
  const qint64 days = seen.isValid() ? seen.daysTo(clock_.Today()) : kPatienceDays;
  if (days < kPatienceDays) return {};
  return u"Второе место для копий «%1» не видно дней: %2. Подключите его: копии попадут туда сами "
         u"вместе со следующей. Другое место можно выбрать командой «Файл → Машина времени…»."_s
             .arg(place, QString::number(days));
}

void CopyKeeper::SetSecondPlace(const QString& folder) {
  settings_.Write(settings::kSecondPlace, folder);
  settings_.Write(settings::kSecondSeen, clock_.Today().toString(Qt::ISODate));
}

}  // namespace kladez
