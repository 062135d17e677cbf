// The widgets of Form1 and how their events reach the model.
#include "gui/form1fenster.h"

#include "gui/rechneransicht.h"

#include "core/laufzeitfehler.h"
#include "core/programmende.h"
#include "gui/farben.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <cstdlib>

namespace lonvir::gui {

namespace {

constexpr Schalterart spalten[] = {L, S, Z, W, T, P};

// The box that has the focus is framed and lit, so that Tab shows where it went.
const char* const wertfeldstil =
    "QLineEdit:focus { border: 2px solid #000080; background: #FFFFC0; }";

QString farbtext(int nummer) {
    return qbcolor(nummer).name();
}

QString text(const std::string& utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// The key of a key event as the handlers know it: a character, Enter 13, backspace 8; 0 for
// keys that type nothing (arrows, Delete), which go to the widget as they are.
int tastencode(const QKeyEvent* e) {
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter)
        return taste::enter;
    if (e->key() == Qt::Key_Backspace)
        return taste::rueck;
    const QString t = e->text();
    if (t.size() != 1 || t[0].unicode() < 32 || t[0].unicode() > 255)
        return 0;
    return t[0].unicode();
}

} // namespace

Form1Fenster::Form1Fenster(Sitzung& s, Dialoge& dialoge, Hilfe* hilfe, QWidget* eltern)
    : QMainWindow(eltern), s_(s), modell_(s, hilfe) {
    s_.dialoge = &dialoge;
    setObjectName(QStringLiteral("Form1"));
    aufbauen();
    geometriezeit_ = new QTimer(this);
    geometriezeit_->setSingleShot(true);
    geometriezeit_->setInterval(300);
    connect(geometriezeit_, &QTimer::timeout, this, [this] { geometrieMerken(); });
}

Form1Fenster::~Form1Fenster() = default;

QComboBox* Form1Fenster::z(int zeile) const {
    return zeilen_.at(static_cast<std::size_t>(zeile)).z;
}

QLineEdit* Form1Fenster::t(int zeile) const {
    return zeilen_.at(static_cast<std::size_t>(zeile)).t;
}

QCheckBox* Form1Fenster::schalter(Schalterart art, int zeile) const {
    if (zeile < 7 || zeile > 19)
        return nullptr;
    return schalter_[static_cast<std::size_t>(art)][static_cast<std::size_t>(zeile - 7)];
}

void Form1Fenster::aufbauen() {
    auto* menue = menuBar()->addMenu(QStringLiteral("Wie"));
    QAction* mbeenden = menue->addAction(QStringLiteral("Beenden"));
    mbeenden->setObjectName(QStringLiteral("MBeenden"));
    connect(mbeenden, &QAction::triggered, this, [this] {
        modell_.MBeenden();
        beenden();
    });

    mitte_ = new QWidget(this);
    setCentralWidget(mitte_);
    kopf_ = new QWidget(mitte_);
    kopfAufbauen(kopf_);
    panel3D1_ = new QFrame(mitte_);
    panel3D1_->setObjectName(QStringLiteral("Panel3D1"));
    panel3D2_ = new QFrame(mitte_);
    panel3D2_->setObjectName(QStringLiteral("Panel3D2"));
    for (QWidget* p : {panel3D1_, panel3D2_})
        static_cast<QFrame*>(p)->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    panel3D6_ = new QLabel(mitte_);
    panel3D6_->setObjectName(QStringLiteral("Panel3D6"));
    panel3D6_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    panel3D6_->setStyleSheet(QStringLiteral("background: #C0C0C0; color: #000080;"));
    rechneransicht_ = new RechnerAnsicht(
        rechner_, [this](const std::function<void()>& h) { ausfuehren(h); }, mitte_);

    for (int zeile = 0; zeile <= 45; ++zeile) {
        QWidget* spalte = zeile <= 22 ? panel3D1_ : panel3D2_;
        Zeile& w = zeilen_[static_cast<std::size_t>(zeile)];
        w.streifen = new QFrame(spalte);
        w.streifen->setAutoFillBackground(true);
        const Bildzeile& b = modell_.bild.zeilen[static_cast<std::size_t>(zeile)];
        if (b.hatListe) {
            w.z = new QComboBox(spalte);
            w.z->setObjectName(QStringLiteral("z%1").arg(zeile));
            w.z->setEditable(zeile == 0);
            w.z->setMaxVisibleItems(20);
            if (zeile == 0)
                w.z->setInsertPolicy(QComboBox::NoInsert);
        }
        if (b.hatWertfeld) {
            w.t = new QLineEdit(spalte);
            w.t->setObjectName(QStringLiteral("t%1").arg(zeile));
            w.t->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            w.t->setStyleSheet(QString::fromUtf8(wertfeldstil));
            QFont fest(QStringLiteral("Courier New"));
            fest.setStyleHint(QFont::TypeWriter);
            fest.setFixedPitch(true);
            w.t->setFont(fest);
        }
        verbinden(zeile);
    }
    for (Schalterart art : spalten)
        for (int zeile = 7; zeile <= 19; ++zeile) {
            auto* box = new QCheckBox(panel3D1_);
            box->setFocusPolicy(Qt::NoFocus);
            schalter_[art][static_cast<std::size_t>(zeile - 7)] = box;
            connect(box, &QCheckBox::clicked, this, [this, art, zeile](bool an) {
                ausfuehren([&] {
                    switch (art) {
                    case L:
                        modell_.lst_Click(zeile, an);
                        break;
                    case S:
                        modell_.soz_Click(zeile, an);
                        break;
                    case Z:
                        modell_.zvk_Click(zeile, an);
                        break;
                    case W:
                        modell_.wei_Click(zeile, an);
                        break;
                    case T:
                        modell_.tei_Click(zeile, an);
                        break;
                    case P:
                        modell_.bru_Click(zeile, an);
                        break;
                    }
                });
            });
        }
    schalterkopf_ = new QLabel(QStringLiteral("L S  Z    B R UT T O    W T P"), panel3D1_);
    schalterkopf_->setAlignment(Qt::AlignCenter);
    bdaBeginn_ = new QLineEdit(panel3D1_);
    bdaBeginn_->setObjectName(QStringLiteral("BDABeginn"));
    bdaBeginn_->setToolTip(QStringLiteral("Bes.dienstalter  (MM.19JJ)"));
    bdaBeginn_->setMaxLength(7);
    bdaBeginn_->setStyleSheet(QString::fromUtf8(wertfeldstil));
    bdaBeginn_->installEventFilter(this);
}

void Form1Fenster::kopfAufbauen(QWidget* kopf) {
    picture1_ = new QLabel(QStringLiteral("LONVIR 97"), kopf);
    picture1_->setObjectName(QStringLiteral("Picture1"));
    picture1_->setAlignment(Qt::AlignCenter);
    picture1_->setCursor(Qt::PointingHandCursor);
    picture1_->installEventFilter(this);
    picture1_->setStyleSheet(
        QStringLiteral("background: #FFFF00; color: #000080; border: 1px solid #000080;"));
    const char* schichten[] = {"I  N  F  O", "P  L  A  N", "R  E  A  L"};
    for (int i = 0; i < 3; ++i) {
        auto* panel = new QLabel(QString::fromUtf8(schichten[i]), kopf);
        panel->setObjectName(QStringLiteral("SSPanel%1").arg(5 + i));
        panel->setAlignment(Qt::AlignCenter);
        panel->setFrameStyle(QFrame::Panel | QFrame::Raised);
        panel->setLineWidth(2);
        panel->setAutoFillBackground(true);
        panel->installEventFilter(this);
        schichtpanels_[static_cast<std::size_t>(i)] = panel;
    }
    const std::tuple<const char*, int, int> knoepfe[] = {{"Info  > Plan", INFO, PLAN},
                                                         {"Plan >  Info", PLAN, INFO},
                                                         {"Plan > Real", PLAN, REAL},
                                                         {"Real > Plan", REAL, PLAN}};
    for (std::size_t i = 0; i < 4; ++i) {
        const auto& [beschriftung, von, nach] = knoepfe[i];
        auto* knopf = new QPushButton(QString::fromUtf8(beschriftung), kopf);
        knopf->setObjectName(QStringLiteral("Command%1").arg(i + 2));
        knopf->setFocusPolicy(Qt::NoFocus);
        connect(knopf, &QPushButton::clicked, this,
                [this, v = von, n = nach] { emit uebertragGeklickt(v, n); });
        uebertragknoepfe_[i] = knopf;
    }
    command1_ = new QPushButton(kopf);
    command1_->setObjectName(QStringLiteral("Command1"));
    command1_->setFocusPolicy(Qt::NoFocus);
    command1_->setAccessibleName(QStringLiteral("Be-  mer- kung"));
    // The narrow button wraps its caption over three lines.
    command1text_ = new QLabel(QStringLiteral("Be-  mer- kung"), command1_);
    command1text_->setWordWrap(true);
    command1text_->setAlignment(Qt::AlignCenter);
    command1text_->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(command1_, &QPushButton::clicked, this, [this] { emit bemerkungGeklickt(); });
    jahrwort_ = new QLabel(QStringLiteral("JAHR"), kopf);
    jahrwort_->setObjectName(QStringLiteral("Jahrwort"));
    jahrwort_->setAlignment(Qt::AlignCenter);
    jahrwort_->setCursor(Qt::PointingHandCursor);
    jahrwort_->setToolTip(QStringLiteral("Jahresübersicht"));
    jahrwort_->setStyleSheet(QStringLiteral("color: #000080; font-weight: bold;"));
    jahrwort_->installEventFilter(this);
    command6_ = new QPushButton(QStringLiteral("Suchen"), kopf);
    command6_->setObjectName(QStringLiteral("Command6"));
    command6_->setFocusPolicy(Qt::NoFocus);
    connect(command6_, &QPushButton::clicked, this, [this] { emit suchenGeklickt(); });
    command7_ = new QPushButton(QStringLiteral("Reform"), kopf);
    command7_->setObjectName(QStringLiteral("Command7"));
    command7_->setFocusPolicy(Qt::NoFocus);
    connect(command7_, &QPushButton::clicked, this, [this] { emit reformGeklickt(); });
    monatstitel_ = new QLabel(kopf);
    monatstitel_->setObjectName(QStringLiteral("Monatstitel"));
    monatstitel_->setAlignment(Qt::AlignCenter);
    monatstitel_->setStyleSheet(QStringLiteral("color: #000080; font-weight: bold;"));
}

// Letters typed into the name list offer the names that begin with them, the first marked:
// Enter or a click on one makes that person current. A name that no one bears is a rename.
void Form1Fenster::namenvervollstaendigen(QComboBox* liste) {
    QCompleter* c = liste->completer();
    if (c == nullptr) {
        c = new QCompleter(liste->model(), liste);
        liste->setCompleter(c);
    }
    c->setCaseSensitivity(Qt::CaseInsensitive);
    c->setFilterMode(Qt::MatchStartsWith);
    c->setCompletionMode(QCompleter::PopupCompletion);
    connect(liste->lineEdit(), &QLineEdit::textEdited, this, [c] {
        QTimer::singleShot(0, c, [c] {
            if (c->popup()->isVisible() && c->completionCount() > 0)
                c->popup()->setCurrentIndex(c->completionModel()->index(0, 0));
        });
    });
}

void Form1Fenster::verbinden(int zeile) {
    Zeile& w = zeilen_[static_cast<std::size_t>(zeile)];
    if (w.z) {
        w.z->installEventFilter(this);
        // The popup's view is made on first asking; asked here once and kept, since asking
        // from the event filter while it is being made would make it again.
        w.aufklapp = w.z->view()->viewport();
        w.aufklapp->installEventFilter(this);
        if (w.z->lineEdit())
            w.z->lineEdit()->installEventFilter(this);
        if (zeile == 0)
            namenvervollstaendigen(w.z);
        connect(w.z, &QComboBox::activated, this, [this, zeile](int position) {
            ausfuehren([&] {
                modell_.bild.zeilen[static_cast<std::size_t>(zeile)].position = position;
                modell_.z_Click(zeile);
            });
        });
    }
    if (w.t) {
        w.t->installEventFilter(this);
        connect(w.t, &QLineEdit::textEdited, this, [this, zeile](const QString& neu) {
            modell_.bild.zeilen[static_cast<std::size_t>(zeile)].wert = neu.toStdString();
        });
    }
}

void Form1Fenster::ausfuehren(const std::function<void()>& handler) {
    if (darstellend_ || laeuft_)
        return;
    laeuft_ = true;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    try {
        handler();
    } catch (const std::exception& fehler) {
        QApplication::restoreOverrideCursor();
        programmende(s_.dialoge, fehler);
    }
    QApplication::restoreOverrideCursor();
    laeuft_ = false;
    darstellen();
}

bool Form1Fenster::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (darstellend_ || laeuft_)
        return QMainWindow::eventFilter(objekt, ereignis);
    if (objekt == jahrwort_ && ereignis->type() == QEvent::MouseButtonRelease) {
        emit jahrGeklickt();
        return true;
    }
    for (int i = 0; i < 3; ++i)
        if (objekt == schichtpanels_[static_cast<std::size_t>(i)] &&
            ereignis->type() == QEvent::MouseButtonRelease) {
            ausfuehren([&] { modell_.SSPanel_Click(i); });
            return true;
        }
    if (objekt == picture1_ && ereignis->type() == QEvent::MouseButtonRelease) {
        ausfuehren([&] { modell_.Picture1_Click(); });
        return true;
    }
    if (objekt == bdaBeginn_ && ereignis->type() == QEvent::KeyPress) {
        const int key = tastencode(static_cast<QKeyEvent*>(ereignis));
        if (key == 0)
            return false;
        int weiter = 0;
        ausfuehren([&] {
            modell_.bild.bdabeginn = bdaBeginn_->text().toStdString();
            weiter = modell_.BDABeginn_KeyPress(key);
        });
        return weiter == 0;
    }
    if (objekt == bdaBeginn_ && ereignis->type() == QEvent::KeyRelease)
        modell_.bild.bdabeginn = bdaBeginn_->text().toStdString();
    for (int zeile = 0; zeile <= 45; ++zeile)
        if (zeilenereignis(zeile, objekt, ereignis))
            return true;
    return QMainWindow::eventFilter(objekt, ereignis);
}

// The events of one row's list and box; true when the event is used up.
bool Form1Fenster::zeilenereignis(int zeile, QObject* objekt, QEvent* ereignis) {
    const Zeile& w = zeilen_[static_cast<std::size_t>(zeile)];
    const QEvent::Type art = ereignis->type();
    if (w.aufklapp && objekt == w.aufklapp)
        return listenzweitklick(zeile, art);
    const bool tastendruck = art == QEvent::KeyPress;
    const auto* e = tastendruck ? static_cast<QKeyEvent*>(ereignis) : nullptr;
    const bool inZeile = objekt == w.z || objekt == w.t || (w.z && objekt == w.z->lineEdit());
    if (inZeile && tastendruck && e->key() == Qt::Key_F1) {
        ausfuehren([&] { modell_.F1(zeile); });
        return true;
    }
    if (w.z && objekt == w.z) {
        if (art == QEvent::FocusIn) {
            ausfuehren([&] { modell_.z_GotFocus(zeile); });
        } else if (art == QEvent::MouseButtonDblClick) {
            ausfuehren([&] { modell_.z_DblClick(zeile); });
        } else if (art == QEvent::MouseButtonPress) {
            listendruckzeile_ = zeile;
            listendruck_.start();
        } else if (tastendruck && w.z->isEditable() && tastencode(e) == taste::enter) {
            // The editable name list takes the keys itself and hands them to its line edit
            // directly: Enter is seen here, on the list.
            umbenennen(zeile);
            return true;
        }
        return false;
    }
    if (w.z && w.z->lineEdit() && objekt == w.z->lineEdit()) {
        if (tastendruck && tastencode(e) == taste::enter) {
            umbenennen(zeile);
            return true;
        }
        if (art == QEvent::FocusIn)
            ausfuehren([&] { modell_.z_GotFocus(zeile); });
        return false;
    }
    if (w.t && objekt == w.t) {
        if (art == QEvent::FocusIn) {
            ausfuehren([&] { modell_.t_GotFocus(zeile); });
        } else if (art == QEvent::MouseButtonPress) {
            ausfuehren([&] { modell_.t_Click(zeile); });
        } else if (art == QEvent::KeyPress) {
            return tastenereignis(zeile, w.t, static_cast<QKeyEvent*>(ereignis));
        }
        return false;
    }
    return false;
}

// Enter on the edit part of the name list: the typed name for the current person.
void Form1Fenster::umbenennen(int zeile) {
    QComboBox* liste = z(zeile);
    ausfuehren([&] {
        modell_.bild.zeilen[static_cast<std::size_t>(zeile)].editiertext =
            liste->currentText().toStdString();
        modell_.z_KeyPress(zeile, taste::enter);
    });
}

// A click in the open list soon after the press that opened it: the list closes and the
// row's help opens, as a double click on the list.
bool Form1Fenster::listenzweitklick(int zeile, QEvent::Type art) {
    if (art != QEvent::MouseButtonPress && art != QEvent::MouseButtonDblClick)
        return false;
    if (listendruckzeile_ != zeile || !listendruck_.isValid() ||
        listendruck_.elapsed() > QApplication::doubleClickInterval())
        return false;
    listendruckzeile_ = -1;
    z(zeile)->hidePopup();
    ausfuehren([&] { modell_.z_DblClick(zeile); });
    return true;
}

// A key in a row box: the model decides whether it goes into the box.
bool Form1Fenster::tastenereignis(int zeile, QLineEdit* feld, QKeyEvent* e) {
    const int key = tastencode(e);
    if (key == 0)
        return false;
    int weiter = 0;
    ausfuehren([&] {
        modell_.bild.zeilen[static_cast<std::size_t>(zeile)].wert = feld->text().toStdString();
        weiter = modell_.t_KeyPress(zeile, key);
    });
    return weiter == 0;
}

bool Form1Fenster::zeilehatfokus() const {
    const QWidget* fokus = QApplication::focusWidget();
    if (fokus == nullptr)
        return false;
    for (const Zeile& w : zeilen_)
        if (fokus == w.z || fokus == w.t || (w.z && fokus == w.z->lineEdit()))
            return true;
    return fokus == bdaBeginn_;
}

void Form1Fenster::keyPressEvent(QKeyEvent* e) {
    const int key = tastencode(e);
    int weiter = key;
    if (key != 0)
        ausfuehren([&] { weiter = modell_.Form_KeyPress(key, zeilehatfokus()); });
    if (weiter != 0)
        QMainWindow::keyPressEvent(e);
}

void Form1Fenster::darstellen() {
    darstellend_ = true;
    listengeaendert_ = false;
    for (int zeile = 0; zeile <= 45; ++zeile)
        zeileDarstellen(zeile);
    // New lists may hold a longer entry: the fonts are measured again.
    if (listengeaendert_)
        bildausrechnen(true);
    const Hauptbild& b = modell_.bild;
    for (Schalterart art : spalten) {
        const Schalterspalte& spalte = b.schalter[static_cast<std::size_t>(art)];
        for (int zeile = 7; zeile <= 19; ++zeile) {
            QCheckBox* box = schalter(art, zeile);
            box->setVisible(b.schalterblock && spalte.sichtbar);
            box->setChecked(spalte.gesetzt[zeile]);
        }
    }
    schalterkopf_->setVisible(b.schalterblock);
    if (bdaBeginn_->text() != text(b.bdabeginn))
        bdaBeginn_->setText(text(b.bdabeginn));
    panel3D6_->setText(QStringLiteral(" ") + text(b.hinweis));
    rechneransicht_->darstellen();
    kopfDarstellen();
    fokusUebergeben();
    darstellend_ = false;
}

void Form1Fenster::zeileDarstellen(int zeile) {
    Zeile& w = zeilen_[static_cast<std::size_t>(zeile)];
    const Bildzeile& b = modell_.bild.zeilen[static_cast<std::size_t>(zeile)];
    if (w.farbe != b.farbe) {
        w.farbe = b.farbe;
        QPalette p = w.streifen->palette();
        p.setColor(QPalette::Window, qbcolor(b.farbe));
        w.streifen->setPalette(p);
        if (w.z)
            w.z->setStyleSheet(QStringLiteral("QComboBox { background: %1; color: %2; }"
                                              "QComboBox:disabled { color: %3; }"
                                              "QComboBox:focus { border: 2px solid #000080; }")
                                   .arg(farbtext(b.farbe), farbtext(b.textfarbe),
                                        b.textfarbe == 15 ? QStringLiteral("#C0C0C0")
                                                          : QStringLiteral("#606060")));
    }
    if (w.z) {
        if (w.listenstand != b.listenstand) {
            w.listenstand = b.listenstand;
            listengeaendert_ = true;
            w.z->clear();
            for (const std::string& eintrag : b.liste)
                w.z->addItem(text(eintrag));
        }
        if (w.z->currentIndex() != b.position)
            w.z->setCurrentIndex(b.position < w.z->count() ? b.position : -1);
        w.z->setEnabled(b.aktiv);
        w.z->setVisible(b.sichtbar);
    }
    if (w.t) {
        w.t->setVisible(b.sichtbar);
        w.t->setReadOnly(b.gesperrt);
        if (w.t->text() != text(b.wert))
            w.t->setText(text(b.wert));
    }
}

void Form1Fenster::kopfDarstellen() {
    const Hauptbild& b = modell_.bild;
    setWindowTitle(text(b.titel));
    monatstitel_->setText(text(b.monatstitel));
    for (int i = 0; i < 3; ++i) {
        QLabel* panel = schichtpanels_[static_cast<std::size_t>(i)];
        const bool aktiv = b.aktiveSchicht == i;
        panel->setStyleSheet(aktiv ? QStringLiteral("background: #000080; color: #FFFFFF;")
                                   : QStringLiteral("background: #C0C0C0; color: #000000;"));
        panel->setFrameShadow(aktiv ? QFrame::Sunken : QFrame::Raised);
    }
    // The preset mode re-captions the transfer buttons; its two take the room of all four.
    // Command4 and Command5 keep their places, from which the other two are measured.
    const QRect b4 = uebertragknoepfe_[2]->geometry();
    const int schritt = uebertragknoepfe_[3]->x() - b4.x();
    const bool modus = modell_.voreinstellung.aktiv;
    for (std::size_t i = 0; i < 4; ++i) {
        const int knopf = static_cast<int>(i) + 2;
        uebertragknoepfe_[i]->setText(text(uebertragknopftext(modell_, knopf)));
        uebertragknoepfe_[i]->setVisible(uebertragknopfsichtbar(modell_, knopf));
    }
    const int breite = modus ? schritt + b4.width() : b4.width();
    uebertragknoepfe_[0]->setGeometry(b4.x() - 2 * schritt, b4.y(), breite, b4.height());
    uebertragknoepfe_[1]->setGeometry(modus ? b4.x() : b4.x() - schritt, b4.y(), breite,
                                      b4.height());
}

void Form1Fenster::fokusUebergeben() {
    Fokus& wunsch = modell_.bild.fokuswunsch;
    QWidget* ziel = nullptr;
    if (wunsch.art == Fokusziel::liste)
        ziel = z(wunsch.zeile);
    else if (wunsch.art == Fokusziel::wertfeld)
        ziel = t(wunsch.zeile);
    else if (wunsch.art == Fokusziel::bdabeginn)
        ziel = bdaBeginn_;
    wunsch = {};
    if (ziel)
        ziel->setFocus(Qt::OtherFocusReason);
}

void Form1Fenster::beenden() {
    beendet_ = true;
    QApplication::exit(0);
}

} // namespace lonvir::gui
