#include "shell/regrealm.h"

#include "core/misc.h"
#include "core/realm.h"
#include "platform/error.h"
#include "platform/platform.h"
#include "shell/controls.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>

namespace umbrith {

namespace {

QLineEdit* box(const QString& name, const QRect& place, QWidget* parent) {
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(name);
    edit->setGeometry(place);
    return edit;
}

QPushButton* button(const QString& name, const QString& text, const QRect& place, QWidget* parent) {
    auto* push = new QPushButton(text, parent);
    push->setObjectName(name);
    push->setGeometry(place);
    push->setAutoDefault(false);
    return push;
}

void acceptCount(QLineEdit* edit) {
    edit->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("\\d{0,4}(\\.\\d{0,2})?")), edit));
}

const char* const listCaptions[] = {"Equipment List:", "Item List:", "Skill List:", "Enemy List:", "Start Map:"};
const char* const listFolders[] = {"equip lists", "item lists", "skill lists", "enemy lists"};
} // namespace

RegRealm::RegRealm(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("RegRealm"));
    setWindowTitle(QStringLiteral("Create Your Realm!"));
    setAttribute(Qt::WA_DeleteOnClose);
    setStyleSheet(look::dialogStyle() + QStringLiteral("QPushButton { padding: 2px 6px; }"));
    setFixedSize(640, 520);

    heading(QStringLiteral("Create Your Realm!"), this)->setGeometry(20, 10, 400, 28);
    caption(QStringLiteral("Realm Name:"), QRect(20, 50, 110, 24), this);
    txtName_ = box(QStringLiteral("txtName"), QRect(130, 50, 170, 24), this);
    caption(QStringLiteral("Description:"), QRect(20, 82, 110, 24), this);
    txtDescription_ = new QPlainTextEdit(this);
    txtDescription_->setObjectName(QStringLiteral("txtDescription"));
    txtDescription_->setGeometry(130, 82, 170, 80);
    txtDescription_->setTabChangesFocus(true);

    buildLists();
    buildRaces();
    buildStats();

    auto* cmdDone = button(QStringLiteral("cmdDone"), QStringLiteral("Create!"), QRect(420, 478, 96, 30), this);
    connect(cmdDone, &QPushButton::clicked, this, &RegRealm::cmdDone_Click);
    auto* cmdCancel = button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), QRect(526, 478, 96, 30), this);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::close);
}

void RegRealm::buildLists() {
    for (int i = 0; i < 5; ++i) {
        const int y = 178 + 32 * i;
        caption(QString::fromUtf8(listCaptions[i]), QRect(20, y, 110, 24), this);
        QLineEdit* path = box(arrayName("txtLists", i), QRect(130, y, 110, 24), this);
        path->setReadOnly(true);
        txtLists_.append(path);
        connect(button(arrayName("cmdLists", i), QStringLiteral("Browse"), QRect(246, y, 64, 24), this),
                &QPushButton::clicked, this, [this, i] { cmdLists_Click(i); });
    }
    caption(QStringLiteral("Default Name:"), QRect(20, 350, 110, 24), this);
    txtDefName_ = box(QStringLiteral("txtDefName"), QRect(130, 350, 180, 24), this);
    chkEN_ = new QCheckBox(QStringLiteral("Editable Name"), this);
    chkEN_->setObjectName(QStringLiteral("chkEN"));
    chkEN_->setGeometry(130, 380, 180, 24);
    chkEN_->setChecked(true);
}

void RegRealm::buildRaces() {
    caption(QStringLiteral("Races:"), QRect(340, 50, 80, 24), this);
    lstRaces_ = new QListWidget(this);
    lstRaces_->setObjectName(QStringLiteral("lstRaces"));
    lstRaces_->setGeometry(420, 50, 130, 112);
    connect(lstRaces_, &QListWidget::currentTextChanged, lstRaces_, &QWidget::setToolTip);
    const char* const captions[] = {"Add", "Rem"};
    for (int i = 0; i < 2; ++i)
        connect(button(arrayName("cmdRaces", i), QString::fromLatin1(captions[i]), QRect(560, 50 + 32 * i, 60, 26), this),
                &QPushButton::clicked, this, [this, i] { cmdRaces_Click(i); });

    RaceFrame_ = new QGroupBox(QStringLiteral("New Race"), this);
    RaceFrame_->setObjectName(QStringLiteral("RaceFrame"));
    RaceFrame_->setGeometry(420, 44, 202, 118);
    RaceFrame_->setStyleSheet(QStringLiteral("QGroupBox { background: #231b15; border: 2px solid %1; margin-top: 12px; }"
                                             "QGroupBox::title { color: %1; left: 8px; }")
                                  .arg(QLatin1String(look::gold)));
    txtRName_ = box(QStringLiteral("txtRName"), QRect(12, 30, 178, 24), RaceFrame_);
    const char* const raceCaptions[] = {"Add", "Cancel"};
    for (int i = 0; i < 2; ++i)
        connect(button(arrayName("cmdRace", i), QString::fromLatin1(raceCaptions[i]), QRect(12 + 94 * i, 72, 84, 28),
                       RaceFrame_),
                &QPushButton::clicked, this, [this, i] { cmdRace_Click(i); });
    connect(txtRName_, &QLineEdit::returnPressed, this, [this] { cmdRace_Click(0); });
    RaceFrame_->hide();
}

void RegRealm::buildStats() {
    auto* options = new QButtonGroup(this);
    const char* const optionCaptions[] = {"Editable Stats", "Base Stats"};
    for (int i = 0; i < 2; ++i) {
        auto* option = new QRadioButton(QString::fromLatin1(optionCaptions[i]), this);
        option->setObjectName(arrayName("optBD", i));
        option->setGeometry(340 + 140 * i, 176, 136, 24);
        options->addButton(option, i);
        optBD_.append(option);
    }
    optBD_[0]->setChecked(true);
    connect(options, &QButtonGroup::idClicked, this, &RegRealm::optBD_Click);
    for (int i = 0; i < StatCount; ++i) {
        const int y = 206 + 30 * i;
        caption(QString::fromUtf8(StatCaptions[i]), QRect(340, y, 120, 24), this);
        QLineEdit* stat = box(arrayName("txtStats", i), QRect(470, y, 80, 24), this);
        acceptStatDecimals(stat);
        txtStats_.append(stat);
    }
    caption(QStringLiteral("Points at Start:"), QRect(20, 418, 130, 24), this);
    txtStatStart_ = box(QStringLiteral("txtStatStart"), QRect(150, 418, 60, 24), this);
    acceptCount(txtStatStart_);
    chkPSS_ = new QCheckBox(QStringLiteral("Editable Stats"), this);
    chkPSS_->setObjectName(QStringLiteral("chkPSS"));
    chkPSS_->setToolTip(QStringLiteral("NOT BASE STATS"));
    chkPSS_->setGeometry(220, 418, 150, 24);
    caption(QStringLiteral("Points per Level:"), QRect(20, 448, 130, 24), this);
    txtStatLev_ = box(QStringLiteral("txtStatLev"), QRect(150, 448, 60, 24), this);
    acceptCount(txtStatLev_);
}

void RegRealm::cmdLists_Click(int index) {
    QString chosen;
    if (index < 4)
        chosen = DialogOpenFile(QStringLiteral("Browse for Configuration File"), QString(),
                                AppPath() + QStringLiteral("\\config\\") + QLatin1String(listFolders[index]),
                                QStringLiteral("Umbrith Configuration File (*.ubc)|*.ubc"),
                                QStringLiteral("There was an error loading a configuration file!"));
    else
        chosen = DialogOpenFile(QStringLiteral("Browse for Map File"), QString(), AppPath() + QStringLiteral("\\maps"),
                                QStringLiteral("Umbrith Maps (*.ubm)|*.ubm"),
                                QStringLiteral("There was an error loading a map file!"));
    if (chosen.isEmpty())
        return;
    const QString path = chosen.section(u'^', 0, 0);
    if (IsInsideProgramFolder(path))
        txtLists_[index]->setText(path.mid(AppPath().size()));
    else
        platform().dialogs.message(QStringLiteral("Only use files located within the Umbrith parent directory!"),
                                   QStringLiteral("Umbrith"), Buttons::Ok, Icon::Exclamation);
}

void RegRealm::cmdRaces_Click(int index) {
    if (index == 0) {
        RaceFrame_->show();
        RaceFrame_->raise();
        txtRName_->setFocus();
    } else if (QListWidgetItem* row = lstRaces_->currentItem()) {
        delete row;
    }
}

void RegRealm::cmdRace_Click(int index) {
    if (index == 0)
        lstRaces_->addItem(txtRName_->text());
    RaceFrame_->hide();
    txtRName_->clear();
}

// One row of boxes serves both sets: the set left keeps the row, the set
// entered fills it.
void RegRealm::optBD_Click(int index) {
    ShowStatSet(readDraft(), index == 1);
    writeStatRow();
}

RealmDraft& RegRealm::readDraft() {
    RealmDraft& d = draft_;
    d.name = txtName_->text();
    d.description = txtDescription_->toPlainText();
    for (int i = 0; i < 5; ++i)
        d.lists[i] = txtLists_[i]->text();
    d.races.clear();
    for (int i = 0; i < lstRaces_->count(); ++i)
        d.races.append(lstRaces_->item(i)->text());
    d.raceFrameOpen = RaceFrame_->isVisible();
    d.defaultName = txtDefName_->text();
    d.nameEditable = chkEN_->isChecked();
    for (int i = 0; i < StatCount; ++i)
        d.shown[i] = txtStats_[i]->text();
    d.statsEditable = chkPSS_->isChecked();
    d.pointsAtStart = txtStatStart_->text();
    d.pointsPerLevel = txtStatLev_->text();
    return d;
}

void RegRealm::writeStatRow() {
    for (int i = 0; i < StatCount; ++i)
        txtStats_[i]->setText(draft_.shown[i]);
}

// The file is asked for before the lists and races are checked; a check that
// fails after it still leaves the file untouched.
void RegRealm::cmdDone_Click() {
    auto refuse = [](const QString& problem) {
        platform().dialogs.message(problem, QStringLiteral("Umbrith"), Buttons::Ok, Icon::Exclamation);
    };
    if (const QString problem = RealmDraftProblem(readDraft()); !problem.isEmpty())
        return refuse(problem);
    const QString chosen = DialogSaveFile(QStringLiteral("Create Realm File"), QString(), AppPath() + QStringLiteral("\\realms"),
                                          QStringLiteral("Umbrith Realm Files (*.ubr)|*.ubr"),
                                          QStringLiteral("We encountered an error trying to create your realm!"));
    if (chosen.isEmpty())
        return;
    const RealmBuild build = BuildRealmRecord(draft_);
    if (!build.problem.isEmpty())
        return refuse(build.problem);
    try {
        WriteRealmFile(chosen.section(u'^', 0, 0), build.record);
    } catch (const RuntimeError&) {
        return refuse(QStringLiteral("We encountered an error trying to create your realm!"));
    }
    emit realmCreated();
    platform().dialogs.message(QStringLiteral("Realm Created!"), QStringLiteral("Umbrith"), Buttons::Ok, Icon::Information);
    close();
}

} // namespace umbrith
