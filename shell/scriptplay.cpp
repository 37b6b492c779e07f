#include "shell/scriptplay.h"

#include "core/gamerecord.h"
#include "core/misc.h"
#include "platform/scripted/scriptedplatform.h"
#include "shell/mainform.h"
#include "shell/scriptstate.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QJsonDocument>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QValidator>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <optional>

namespace umbrith {

namespace {

struct Line {
    int number;
    QString command;
    QString rest; // the arguments as written
    QStringList args;
};

// A line that could not be carried out.
struct Failure {
    QString why;
};

std::optional<int> keyCode(const QString& name) {
    static const QList<std::pair<const char*, int>> named = {
        {"Left", Qt::Key_Left},   {"Right", Qt::Key_Right},   {"Up", Qt::Key_Up},         {"Down", Qt::Key_Down},
        {"Space", Qt::Key_Space}, {"Escape", Qt::Key_Escape}, {"Return", Qt::Key_Return},
    };
    for (const auto& [text, code] : named)
        if (name == QLatin1String(text))
            return code;
    if (name.size() == 1 && name[0].toUpper() >= u'A' && name[0].toUpper() <= u'Z')
        return Qt::Key_A + (name[0].toUpper().unicode() - u'A');
    return std::nullopt;
}

QString keyText(int code) {
    if (code == Qt::Key_Space)
        return QStringLiteral(" ");
    if (code >= Qt::Key_A && code <= Qt::Key_Z)
        return QString(QChar(u'a' + (code - Qt::Key_A)));
    return QString();
}

// Checks a line's form before anything runs, so a typing slip fails at once.
std::optional<QString> checkLine(const Line& line) {
    const QString& c = line.command;
    const qsizetype n = line.args.size();
    auto needs = [&](qsizetype count, const char* form) -> std::optional<QString> {
        if (n < count)
            return QStringLiteral("\"%1\" needs %2").arg(c, QLatin1String(form));
        return std::nullopt;
    };
    if (c == u"key") {
        if (n != 1 || !keyCode(line.args[0]))
            return QStringLiteral("\"key\" takes one of Left, Right, Up, Down, Space, Escape, Return or a letter A-Z");
        return std::nullopt;
    }
    if (c == u"click")
        return needs(1, "a control's name");
    if (c == u"type")
        return needs(1, "a text box's name and the text");
    if (c == u"select")
        return needs(2, "a list's name and a row");
    if (c == u"answer") {
        static const QStringList answers = {"yes", "no", "cancel", "ok"};
        if (n != 1 || !answers.contains(line.args[0]))
            return QStringLiteral("\"answer\" takes yes, no, cancel or ok");
        return std::nullopt;
    }
    if (c == u"answer-file" || c == u"answer-input")
        return std::nullopt;
    if (c == u"random" || c == u"wait") {
        if (n == 0 || (c == u"wait" && n != 1))
            return QStringLiteral("\"%1\" needs %2").arg(c, c == u"wait" ? "a number of milliseconds" : "one or more draws");
        for (const QString& arg : line.args) {
            bool ok = false;
            const double value = arg.toDouble(&ok);
            if (!ok || value < 0 || (c == u"random" && value >= 1) || (c == u"wait" && value != int(value)))
                return QStringLiteral("\"%1\" is not a %2").arg(arg, c == u"wait" ? "whole number of milliseconds" : "draw in [0, 1)");
        }
        return std::nullopt;
    }
    if (c == u"dump")
        return needs(1, "a file");
    if (c == u"screenshot")
        return needs(2, "a form or control's name and a file");
    if (c == u"show")
        return needs(1, "a form's name");
    return QStringLiteral("unknown command \"%1\"").arg(c);
}

class ScriptPlayer {
public:
    explicit ScriptPlayer(QList<Line> lines) : lines_(std::move(lines)) {}

    bool isLeading(const Line& line) const { return line.command == u"random" || line.command.startsWith(u"answer"); }

    int run() {
        // Queued before Main loads, so they serve the start-up too.
        while (next_ < lines_.size() && isLeading(lines_[next_]))
            queue(lines_[next_++]);
        scripted_.install();
        GameRecord game;
        Main mainForm(game);
        main_ = &mainForm;
        QObject::connect(&mainForm, &Main::programEnded, [this] { ended_ = true; });
        QObject::connect(&mainForm, &Main::popupShown, [this](const QString& title, const QString& text) {
            scripted_.logBox(QStringLiteral("popup"), title, text);
        });
        mainForm.show();
        mainForm.activateWindow();
        QApplication::processEvents();
        if (!checkBoxes(QStringLiteral("start-up")))
            return 1;
        scripted_.onWait = [this] { runWhileWaiting(); };
        while (next_ < lines_.size())
            if (!runNext())
                return 1;
        scripted_.onWait = nullptr;
        QStringList left = scripted_.problems();
        if (!left.isEmpty())
            return fail(QStringLiteral("end of script"), left.join(QStringLiteral("; ")));
        return 0;
    }

private:
    int fail(const QString& where, const QString& why) {
        std::fprintf(stderr, "%s: %s\n", where.toLocal8Bit().constData(), why.toLocal8Bit().constData());
        return 1;
    }

    // Boxes that went unanswered during a step make it fail.
    bool checkBoxes(const QString& where) {
        const QStringList problems = scripted_.unanswered().mid(reported_);
        reported_ = scripted_.unanswered().size();
        if (problems.isEmpty())
            return true;
        fail(where, problems.join(QStringLiteral("; ")));
        return false;
    }

    bool runNext() {
        const Line& line = lines_[next_++];
        const QString where = QStringLiteral("line %1").arg(line.number);
        if (ended_) {
            fail(where, QStringLiteral("the program has ended"));
            return false;
        }
        try {
            execute(line);
        } catch (const Failure& failure) {
            fail(where, failure.why);
            return false;
        }
        return checkBoxes(where);
    }

    // While the program waits for the player, the script plays on.
    void runWhileWaiting() {
        if (next_ >= lines_.size()) {
            fail(QStringLiteral("end of script"), QStringLiteral("the program is still waiting for the player"));
            std::exit(1);
        }
        if (!runNext())
            std::exit(1);
    }

    void queue(const Line& line) {
        if (line.command == u"random") {
            for (const QString& arg : line.args)
                scripted_.queueDraw(arg.toFloat());
        } else if (line.command == u"answer") {
            static const QMap<QString, Answer> answers = {
                {"yes", Answer::Yes}, {"no", Answer::No}, {"cancel", Answer::Cancel}, {"ok", Answer::Ok}};
            scripted_.queueAnswer(answers.value(line.args[0]));
        } else if (line.command == u"answer-file") {
            scripted_.queueFile(line.rest.startsWith(u'\\') ? AppPath() + line.rest : line.rest);
        } else {
            scripted_.queueInput(line.rest);
        }
    }

    template <typename T> T* control(const QString& name, const char* kind) {
        QObject* found = findNamed(name);
        if (!found)
            throw Failure{QStringLiteral("no control named \"%1\"").arg(name)};
        auto* result = qobject_cast<T*>(found);
        if (!result)
            throw Failure{QStringLiteral("\"%1\" is not %2").arg(name, QLatin1String(kind))};
        return result;
    }

    void usable(QWidget* widget, const QString& name) {
        if (!widget->isVisible())
            throw Failure{QStringLiteral("\"%1\" is not visible").arg(name)};
        if (!widget->isEnabled())
            throw Failure{QStringLiteral("\"%1\" is disabled").arg(name)};
    }

    void execute(const Line& line) {
        const QString& c = line.command;
        if (isLeading(line))
            queue(line);
        else if (c == u"key")
            pressKey(*keyCode(line.args[0]));
        else if (c == u"click")
            click(line.args[0]);
        else if (c == u"type")
            type(line.args[0], line.rest.section(u' ', 1));
        else if (c == u"select")
            select(line.args[0], line.rest.section(u' ', 1));
        else if (c == u"wait")
            scripted_.advance(line.args[0].toInt());
        else if (c == u"dump")
            dump(line.rest);
        else if (c == u"show")
            show(line.args[0]);
        else
            screenshot(line.args[0], line.rest.section(u' ', 1));
        QApplication::processEvents();
    }

    void pressKey(int code) {
        QWidget* target = QApplication::focusWidget();
        if (!target || !target->isVisible())
            target = QApplication::activeWindow();
        if (!target || !target->isVisible())
            target = main_;
        QCoreApplication::postEvent(target, new QKeyEvent(QEvent::KeyPress, code, Qt::NoModifier, keyText(code)));
        QCoreApplication::postEvent(target, new QKeyEvent(QEvent::KeyRelease, code, Qt::NoModifier, keyText(code)));
        QCoreApplication::sendPostedEvents();
    }

    void click(const QString& name) {
        QObject* found = findNamed(name);
        if (!found)
            throw Failure{QStringLiteral("no control named \"%1\"").arg(name)};
        if (auto* action = qobject_cast<QAction*>(found)) {
            if (!action->isEnabled())
                throw Failure{QStringLiteral("\"%1\" is disabled").arg(name)};
            action->trigger();
            return;
        }
        auto* widget = qobject_cast<QWidget*>(found);
        usable(widget, name);
        if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
            button->click();
            return;
        }
        const QPointF centre = QRectF(widget->rect()).center();
        const QPointF global = widget->mapToGlobal(centre);
        QMouseEvent press(QEvent::MouseButtonPress, centre, global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QMouseEvent release(QEvent::MouseButtonRelease, centre, global, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &press);
        QCoreApplication::sendEvent(widget, &release);
    }

    void type(const QString& name, const QString& text) {
        auto* widget = control<QWidget>(name, "a text box");
        usable(widget, name);
        if (auto* line = qobject_cast<QLineEdit*>(widget)) {
            // A script types only what a player could type.
            QString typed = text;
            int at = 0;
            if (line->validator() && line->validator()->validate(typed, at) == QValidator::Invalid)
                throw Failure{QStringLiteral("\"%1\" does not take \"%2\"").arg(name, text)};
            line->setText(text);
            emit line->textEdited(text);
        } else if (auto* edit = qobject_cast<QTextEdit*>(widget)) {
            edit->setPlainText(text);
        } else if (auto* plain = qobject_cast<QPlainTextEdit*>(widget)) {
            plain->setPlainText(text);
        } else if (auto* combo = qobject_cast<QComboBox*>(widget); combo && combo->isEditable()) {
            combo->setEditText(text);
        } else {
            throw Failure{QStringLiteral("\"%1\" is not a text box").arg(name)};
        }
    }

    void select(const QString& name, const QString& row) {
        auto* widget = control<QWidget>(name, "a list");
        usable(widget, name);
        QStringList rows;
        auto* list = qobject_cast<QListWidget*>(widget);
        auto* combo = qobject_cast<QComboBox*>(widget);
        if (!list && !combo)
            throw Failure{QStringLiteral("\"%1\" is not a list or combo box").arg(name)};
        const int count = list ? list->count() : combo->count();
        for (int i = 0; i < count; ++i)
            rows << (list ? list->item(i)->text() : combo->itemText(i));
        int index = rows.indexOf(row);
        if (row.startsWith(u'#')) {
            bool ok = false;
            index = row.mid(1).toInt(&ok);
            if (!ok || index < 0 || index >= count)
                throw Failure{QStringLiteral("\"%1\" has no row %2").arg(name, row)};
        }
        if (index < 0)
            throw Failure{QStringLiteral("\"%1\" has no row \"%2\"").arg(name, row)};
        if (list)
            list->setCurrentRow(index);
        else
            combo->setCurrentIndex(index);
    }

    void dump(const QString& file) {
        QFile out(file);
        if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate))
            throw Failure{QStringLiteral("cannot write \"%1\"").arg(file)};
        out.write(QJsonDocument(stateJson(*main_, scripted_)).toJson());
    }

    // A form that no menu opens yet (the NPC creator, before the level
    // editor's Tools menu) is shown as its menu would show it.
    void show(const QString& name) {
        for (QWidget* form : QApplication::topLevelWidgets())
            if (form->objectName() == name) {
                form->show();
                form->raise();
                form->activateWindow();
                return;
            }
        throw Failure{QStringLiteral("no form named \"%1\"").arg(name)};
    }

    void screenshot(const QString& name, const QString& file) {
        auto* widget = control<QWidget>(name, "a form or control");
        if (!widget->grab().save(file, "PNG"))
            throw Failure{QStringLiteral("cannot write \"%1\"").arg(file)};
    }

    QList<Line> lines_;
    qsizetype next_ = 0;
    qsizetype reported_ = 0;
    bool ended_ = false;
    ScriptedPlatform scripted_;
    Main* main_ = nullptr;
};

} // namespace

int runScript(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "umbrith: cannot read the script \"%s\"\n", path.toLocal8Bit().constData());
        return 1;
    }
    QList<Line> lines;
    const QStringList texts = QString::fromUtf8(file.readAll()).split(u'\n');
    for (int i = 0; i < texts.size(); ++i) {
        QString text = texts[i];
        if (text.endsWith(u'\r'))
            text.chop(1);
        const QString trimmed = text.trimmed();
        if (trimmed.isEmpty() || trimmed.startsWith(u'#'))
            continue;
        Line line{i + 1, trimmed.section(u' ', 0, 0), trimmed.section(u' ', 1).trimmed(), {}};
        line.args = line.rest.split(u' ', Qt::SkipEmptyParts);
        if (std::optional<QString> problem = checkLine(line)) {
            std::fprintf(stderr, "line %d: %s\n", line.number, problem->toLocal8Bit().constData());
            return 1;
        }
        lines.append(line);
    }
    return ScriptPlayer(std::move(lines)).run();
}

} // namespace umbrith
