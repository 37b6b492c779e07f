#include "platform/real/qtdialogs.h"

#include "platform/files.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace umbrith {

namespace {

QMessageBox::Icon toQt(Icon icon) {
    switch (icon) {
    case Icon::Information: return QMessageBox::Information;
    case Icon::Exclamation: return QMessageBox::Warning;
    case Icon::Critical: return QMessageBox::Critical;
    case Icon::Question: return QMessageBox::Question;
    case Icon::None: break;
    }
    return QMessageBox::NoIcon;
}

// "Umbrith Maps (*.ubm)|*.ubm|All (*.*)|*.*" becomes Qt's "Umbrith Maps (*.ubm);;All (*.*)".
QString toQtFilter(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    QStringList pairs;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns = QString(parts[i + 1]).replace(u';', u' ');
        pairs << (parts[i].contains(u'(') ? parts[i] : parts[i] + QStringLiteral(" (") + patterns + u')');
    }
    return pairs.join(QStringLiteral(";;"));
}

QString storedForm(const QString& path) { return QString(path).replace(u'/', u'\\'); }

QString startPath(const FileDialogSettings& settings) {
    QString folder = nativePath(settings.initialFolder);
    return settings.fileName.isEmpty() ? folder : folder + u'/' + settings.fileName;
}

} // namespace

Answer QtDialogs::message(const QString& text, const QString& title, Buttons buttons, Icon icon) {
    QMessageBox::StandardButtons qtButtons = QMessageBox::Ok;
    switch (buttons) {
    case Buttons::Ok: break;
    case Buttons::OkCancel: qtButtons = QMessageBox::Ok | QMessageBox::Cancel; break;
    case Buttons::YesNo: qtButtons = QMessageBox::Yes | QMessageBox::No; break;
    case Buttons::YesNoCancel: qtButtons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel; break;
    }
    QMessageBox box(toQt(icon), title, text, qtButtons, QApplication::activeWindow());
    switch (box.exec()) {
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    case QMessageBox::Cancel: return Answer::Cancel;
    default: return buttons == Buttons::YesNo ? Answer::No : Answer::Ok;
    }
}

QString QtDialogs::input(const QString& prompt, const QString& title, const QString& initial) {
    bool ok = false;
    QString text = QInputDialog::getText(QApplication::activeWindow(), title, prompt, QLineEdit::Normal, initial, &ok);
    return ok ? text : QString();
}

QString QtDialogs::openFile(const FileDialogSettings& settings) {
    return storedForm(QFileDialog::getOpenFileName(QApplication::activeWindow(), settings.title, startPath(settings),
                                                   toQtFilter(settings.filter)));
}

QString QtDialogs::saveFile(const FileDialogSettings& settings) {
    QFileDialog::Options options;
    if (!settings.overwritePrompt)
        options |= QFileDialog::DontConfirmOverwrite;
    return storedForm(QFileDialog::getSaveFileName(QApplication::activeWindow(), settings.title, startPath(settings),
                                                   toQtFilter(settings.filter), nullptr, options));
}

} // namespace umbrith
