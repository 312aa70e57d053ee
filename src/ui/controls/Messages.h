// The message boxes and the input box of all screens. Texts are shown as typed, never as markup.
#pragma once

#include <QString>
#include <optional>

class QWidget;

namespace kladez {

inline constexpr QStringView kAttention = u"Внимание!";

void ShowMessage(QWidget* parent, const QString& text,
                 const QString& title = kAttention.toString());
void ShowInformation(QWidget* parent, const QString& text,
                     const QString& title = kAttention.toString());
void ShowError(QWidget* parent, const QString& text, const QString& title = kAttention.toString());

// The refusal of a command that the seller may not give.
void NotAllowed(QWidget* parent);

enum class DefaultAnswer { kYes, kNo };
// `consequence` stands below the question: what thing is meant, and what happens to it.
bool AskYesNo(QWidget* parent, const QString& text, const QString& title,
              DefaultAnswer otherwise = DefaultAnswer::kYes, const QString& consequence = {});

// Before something is deleted: the question, and in a line below it what is meant and what happens
// to it and the stock. "Нет" is the default: what is deleted does not come back.
bool AskDelete(QWidget* parent, const QString& question, const QString& title,
               const QString& consequence);

enum class Answer { kYes, kNo, kCancel };
Answer AskYesNoCancel(QWidget* parent, const QString& text, const QString& title,
                      const QString& consequence = {}, Answer otherwise = Answer::kYes);

// The input box: nothing when cancelled; callers treat an empty text alike.
std::optional<QString> AskText(QWidget* parent, const QString& title, const QString& prompt,
                               const QString& value = {});

}  // namespace kladez
