#pragma once

#include "core/realmdraft.h"

#include <QDialog>
#include <QList>

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QRadioButton;

namespace umbrith {

// "Create Your Realm!": a maker names the lists, the start map, the races and
// the start statistics of a realm, and writes its file into "\realms".
class RegRealm : public QDialog {
    Q_OBJECT
public:
    explicit RegRealm(QWidget* parent);

signals:
    // A realm file was written: the realm list is to be read again.
    void realmCreated();

private:
    void buildLists();
    void buildRaces();
    void buildStats();
    RealmDraft& readDraft();
    void writeStatRow();

    void cmdLists_Click(int index);
    void cmdRaces_Click(int index);
    void cmdRace_Click(int index);
    void optBD_Click(int index);
    void cmdDone_Click();

    RealmDraft draft_;
    QLineEdit* txtName_;
    QPlainTextEdit* txtDescription_;
    QList<QLineEdit*> txtLists_;
    QListWidget* lstRaces_;
    QGroupBox* RaceFrame_;
    QLineEdit* txtRName_;
    QLineEdit* txtDefName_;
    QCheckBox* chkEN_;
    QList<QLineEdit*> txtStats_;
    QList<QRadioButton*> optBD_;
    QLineEdit* txtStatStart_;
    QLineEdit* txtStatLev_;
    QCheckBox* chkPSS_;
};

} // namespace umbrith
