// The words in which golden cases are told: steps of a person at the windows, and changes of the
// tree.
#pragma once

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>
#include <QTest>
#include <fstream>
#include <sstream>

#include "formats/TextLines.h"
#include "tour/Eyes.h"
#include "tour/GoldenCases.h"

namespace kladez::golden {

using Step = std::function<void(Robot&)>;

// Screens are told by their names, whatever they open from.
inline Step Menu(const QString& command, const QString& screen) {
  return [=](Robot& robot) {
    robot.OpenMenu(command);
    robot.WaitFor(screen);
  };
}

inline Step operator>>(const Step& first, const Step& second) {
  return [=](Robot& robot) {
    first(robot);
    second(robot);
  };
}

inline Step Click(const QString& control) {
  return [=](Robot& robot) { robot.Click(control); };
}

inline Step Open(const QString& control, const QString& screen) {
  return [=](Robot& robot) {
    robot.Click(control);
    robot.WaitFor(screen);
  };
}

inline Step Select(const QString& row) {
  return [=](Robot& robot) { robot.SelectRow(u"ListView1"_s, row); };
}

// Into the input box or quantity dialog that has come up.
inline Step Answer(const QString& screen, const QString& typed) {
  return [=](Robot& robot) {
    robot.WaitFor(screen);
    robot.Type(u"Text1"_s, typed);
    robot.Press(Qt::Key_Return);
  };
}

inline Step Press(QMessageBox::StandardButton button) {
  return [=](Robot& robot) {
    robot.WaitForMessage();
    robot.InWindow([=] {
      auto* box = qobject_cast<QMessageBox*>(eyes::Front());
      QTest::mouseClick(box->button(button), Qt::LeftButton);
    });
  };
}

inline Step Yes() { return Press(QMessageBox::Yes); }

// Out of the window, and what would wait in it is let go.
inline Step LeaveUnsaved() {
  return [](Robot& robot) {
    robot.Press(Qt::Key_Escape);
    Press(QMessageBox::No)(robot);
  };
}

// One party more, in the list that the menu opens.
inline Step AddParty(const QString& menu, const QString& list, const QString& form) {
  return Menu(menu, list) >> Open(u"add"_s, form) >> [=](Robot& robot) {
    robot.Type(u"field1"_s, u"ООО «Заря»"_s);
    robot.Click(u"ok"_s);
    robot.WaitFor(list);
  };
}

inline Step TypeFolder(const QString& folder) {
  return [=](Robot& robot) {
    robot.Type(u"Path1"_s, qEnvironmentVariable("GOLDEN_BACKUPS") + folder);
  };
}

inline Step AddLine(const QString& picker, const QString& editor) {
  return Open(u"add"_s, picker) >> [=](Robot& robot) {
    robot.SelectRow(u"ListView1"_s, u"Чай"_s);
    robot.Press(Qt::Key_Return);
    robot.WaitFor(u"colvo"_s);
    robot.Type(u"Text1"_s, u"2.5"_s);
    robot.Press(Qt::Key_Return);
    if (picker == u"price2") {
      robot.WaitFor(picker);
      robot.Press(Qt::Key_Escape);
    }
    robot.WaitFor(editor);
  };
}

inline Step CheckAt(const QString& control) {
  return [=](Robot& robot) { robot.Check(control, true); };
}

inline Step ChooseIn(const QString& combo, const QString& entry) {
  return [=](Robot& robot) { robot.Choose(combo, entry); };
}

std::string Lines(const QString& lines) { return EncodeLines(lines.split(u'\n')).toStdString(); }

using Change = std::function<void(Tree&)>;

inline Change Changed(const std::string& path, const QString& lines) {
  return [=](Tree& tree) { tree[path] = Lines(lines); };
}

inline Change Empty(const std::string& path) {
  return [=](Tree& tree) { tree[path] = ""; };
}

// A file, or a directory with all in it.
inline Change Gone(const std::string& path) {
  return [=](Tree& tree) {
    std::erase_if(tree, [&](const auto& entry) { return entry.first.starts_with(path); });
  };
}

inline Change Copied(const std::string& from, const std::string& to) {
  return [=](Tree& tree) {
    for (const auto& [path, bytes] : Tree(tree)) {
      if (path.starts_with(from)) tree[to + path.substr(from.size())] = bytes;
    }
  };
}

inline Change operator+(const Change& first, const Change& second) {
  return [=](Tree& tree) {
    first(tree);
    second(tree);
  };
}

// A page as it lies, in UTF-8, in the folder golden/.
inline Change PageOf(const std::string& name) {
  return [=](Tree& tree) {
    std::ifstream in(std::string(GOLDEN_PAGES "/") + name + ".htm", std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    tree["data/out.htm"] = Lines(QString::fromStdString(text.str()).chopped(1));
  };
}

inline const std::string kBase = "data/0001/";
inline const std::string kMain = kBase + "Главный склад/";
inline const std::string kKiosk = kBase + "Ларёк/";
inline const std::string kBackup = "Копия БД Kladez от 23-11-26/";
inline const std::string kShop = kBase + "Магазин/";

}  // namespace kladez::golden
