#include "clues/windows/TelarBro.h"

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "clues/clue_search.h"
#include "clues/small_grid.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/word_line.h"
#include "platform/text.h"

namespace telarium {
namespace {

// Places in the window, in pixels; widths of picture and table in parts of the window's width.
constexpr int Bordo = 6;
constexpr QSize MisuraMinima(600, 300);
constexpr int LarghezzaIntera = 640;
constexpr int LarghezzaPicture1 = 350;
constexpr int LarghezzaGitter1 = 270;
constexpr int DalFondoLabel3 = 110;
constexpr int DalFondoText2 = 50;
constexpr int SopraLabel3 = 15;   // from the picture
constexpr int SottoGitter1 = 18;  // to the top of Text2 before it is laid over a row
constexpr int FraPicture1EGitter1 = 12;
constexpr int FraBottoniEGitter1 = 5;
constexpr int RialzoCommand3d1 = 5;  // of the buttons against Label3
constexpr int RibassoCommand3d2 = 22;
constexpr int FraBottoni = 2;
constexpr int LarghezzaBottone = 80;  // at least
constexpr int FraCaselle = 1;
constexpr int MenoInText2 = 16;

constexpr int Colonne = 3;
constexpr int ColonnaParola = 1;
constexpr int ColonnaDefinizione = 2;
constexpr int NoniDelleColonne[Colonne] = {1, 3, 5};

// Of a clue, which can have any length.
constexpr std::size_t MaxCaratteriInUnaRiga = 500;

// A key that only leads to another control, or that is held for another key.
bool SoloDiPassaggio(const QKeyEvent& evento) {
  constexpr int tasti[] = {Qt::Key_Tab,     Qt::Key_Backtab, Qt::Key_Shift,
                           Qt::Key_Control, Qt::Key_Alt,     Qt::Key_AltGr};
  return std::find(std::begin(tasti), std::end(tasti), evento.key()) != std::end(tasti);
}

// The letter that a key types; null for keys of editing and of commands.
QChar Digitata(const QKeyEvent& evento) {
  const bool comando = evento.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  const QString testo = evento.text();
  return comando || testo.isEmpty() || !testo.front().isPrint() ? QChar() : testo.front();
}

// As much of a text as a row or a menu entry can show.
QString InUnaRiga(std::string_view testo) {
  return AQt(SenzaInterruzioni(testo.substr(0, MaxCaratteriInUnaRiga)));
}

void Scrivi(QTableWidget& tabella, int riga, int colonna, std::string_view testo) {
  const QString nuovo = InUnaRiga(testo);
  if (QTableWidgetItem* voce = tabella.item(riga, colonna)) {
    if (voce->text() != nuovo) voce->setText(nuovo);
  } else {
    tabella.setItem(riga, colonna, new QTableWidgetItem(nuovo));
  }
}

}  // namespace

TelarBro::TelarBro(QWidget* genitore)
    : FinestraModale(QStringLiteral("TelarBro"), TitoloAQt(TitoloTabella()), genitore),
      bozza_(ApriBozza()),
      RiferimentoRiga(bozza_.Parole()) {
  EsigiSchemaSemplice(bozza_.Derivata());
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setMenuBar(CreaMenu());
  campo_ = Chiamato(QStringLiteral("Campo"), new QWidget(this));
  campo_->setMinimumSize(MisuraMinima);
  colonna->addWidget(campo_);
  Picture1 = Chiamato(QStringLiteral("Picture1"), new Tela(campo_));
  Picture1->QuandoCambiaMisura([this] { DisegnaSchema(); });
  CreaTabella();
  Label3 =
      Chiamato(QStringLiteral("Label3"), new QLabel(QStringLiteral("0 - Orizzontale"), campo_));
  CreaCaselle();
  CreaBottoni();
  MostraModifica(false);
  campo_->installEventFilter(this);
  Griglia();
}

QMenuBar* TelarBro::CreaMenu() {
  auto* barra = Chiamato(QStringLiteral("Barra"), new QMenuBar(this));
  Menufil = Chiamato(QStringLiteral("Menufil"), barra->addMenu(QStringLiteral("&File")));
  menutorna = Chiamato(QStringLiteral("menutorna"),
                       Menufil->addAction(QStringLiteral("&Torna alla vista normale")));
  connect(menutorna, &QAction::triggered, this, [this] { reject(); });
  Menudef = Chiamato(QStringLiteral("Menudef"), new QMenu(QStringLiteral("Definiz"), this));
  // Else what has no room below would go into columns, and those beyond the screen.
  Menudef->setStyleSheet(QStringLiteral("QMenu { menu-scrollable: 1; }"));
  connect(Menudef, &QMenu::triggered, this, [this](const QAction* voce) {
    Text2->Mostra(DaQt(voce->data().toString()));
    Text2->setFocus();
  });
  return barra;
}

void TelarBro::CreaTabella() {
  const int righe = std::max(1, static_cast<int>(RiferimentoRiga.size()));
  Gitter1 = Chiamato(QStringLiteral("Gitter1"), new QTableWidget(righe, Colonne, campo_));
  Gitter1->setToolTip(QStringLiteral("Lista delle parole (doppio click  per modifica)"));
  Gitter1->setHorizontalHeaderLabels(
      {QStringLiteral("N."), QStringLiteral("Parola"), QStringLiteral("Definizione")});
  Gitter1->horizontalHeader()->setHighlightSections(false);
  Gitter1->horizontalHeader()->setMinimumSectionSize(1);
  Gitter1->verticalHeader()->hide();
  Gitter1->setEditTriggers(QAbstractItemView::NoEditTriggers);
  Gitter1->setSelectionBehavior(QAbstractItemView::SelectRows);
  Gitter1->setSelectionMode(QAbstractItemView::SingleSelection);
  Gitter1->setTabKeyNavigation(false);
  Gitter1->setWordWrap(false);
  Gitter1->installEventFilter(this);
  Gitter1->viewport()->installEventFilter(this);
  connect(Gitter1, &QTableWidget::cellDoubleClicked, this, [this] { ApriModificaRiga(); });
  for (QScrollBar* barra : {Gitter1->verticalScrollBar(), Gitter1->horizontalScrollBar()})
    connect(barra, &QScrollBar::valueChanged, this, [this] { MostraModifica(false); });
}

void TelarBro::CreaCaselle() {
  Text1 = Chiamato(QStringLiteral("Text1"), new CasellaMaiuscola(campo_));
  Text2 = Chiamato(QStringLiteral("Text2"), new RigaDefinizione(campo_));
  for (QLineEdit* casella : std::initializer_list<QLineEdit*>{Text1, Text2})
    casella->installEventFilter(this);
  // A row is high enough for the boxes that are laid over it, and has the line below it.
  Gitter1->verticalHeader()->setDefaultSectionSize(Text1->sizeHint().height() + 1);
}

QPushButton* TelarBro::Bottone(const QString& nome, const QString& testo,
                               const QString& consiglio) {
  QPushButton* nuovo = Pulsante(nome, testo, consiglio, campo_);
  const QSize misura = nuovo->sizeHint();
  nuovo->resize(std::max(misura.width(), LarghezzaBottone), misura.height());
  return nuovo;
}

void TelarBro::CreaBottoni() {
  Command1 = Bottone(QStringLiteral("Command1"), QStringLiteral("&Varia"),
                     QStringLiteral("Conferma le modifiche su parola/definizione"));
  Command2 = Bottone(QStringLiteral("Command2"), QStringLiteral("&Cerca"),
                     QStringLiteral("Cerca una definizione nell'Enciclopedia"));
  Command3d1 = Bottone(QStringLiteral("Command3d1"), QStringLiteral("&OK"),
                       QStringLiteral("Conferma tutte le modifiche"));
  Command3d2 = Bottone(QStringLiteral("Command3d2"), QStringLiteral("&Annulla"),
                       QStringLiteral("Annulla tutte le modifiche"));
  connect(Command1, &QPushButton::clicked, this, [this] { Varia(); });
  connect(Command2, &QPushButton::clicked, this, [this] { Cerca(); });
  connect(Command3d1, &QPushButton::clicked, this, [this] {
    if (!ConfermaRigaAperta()) return;
    ConfermaBozza(bozza_);
    accept();
  });
  connect(Command3d2, &QPushButton::clicked, this, [this] { reject(); });
}

void TelarBro::Colloca(const QRect& schermo) {
  setGeometry(schermo);
  setWindowState(Qt::WindowMaximized);  // only so does the frame count
}

void TelarBro::Attivata() {
  Gitter1->setFocus();
}

// --- Places ---

void TelarBro::Disponi() {
  const int w = campo_->width();
  const int h = campo_->height();
  const int cimaLabel3 = h - DalFondoLabel3;
  const int larghezza = w * LarghezzaPicture1 / LarghezzaIntera;
  const int sinistraGitter1 = larghezza + FraPicture1EGitter1;
  Picture1->setGeometry(Bordo, Bordo, larghezza, cimaLabel3 - SopraLabel3);
  Gitter1->setGeometry(sinistraGitter1 + Bordo, Bordo, w * LarghezzaGitter1 / LarghezzaIntera,
                       h - DalFondoText2 - SottoGitter1);
  const int sinistraBottoni = Gitter1->x() - FraBottoniEGitter1 - Command3d2->width();
  Command3d1->resize(Command3d2->size());
  Command3d1->move(sinistraBottoni, cimaLabel3 - RialzoCommand3d1);
  // Large types make buttons that the usual distance has no room for.
  const int sottoCommand3d1 = Command3d1->geometry().bottom() + 1 + FraBottoni;
  Command3d2->move(sinistraBottoni, std::max(cimaLabel3 + RibassoCommand3d2, sottoCommand3d1));
  Label3->setGeometry(Bordo, cimaLabel3, sinistraBottoni - 2 * Bordo, Label3->sizeHint().height());
  if (InModifica()) DisponiModifica();
}

// Lays the boxes over the current row, with their buttons above them.
void TelarBro::DisponiModifica() {
  QRect cella = Gitter1->visualItemRect(Gitter1->item(RigaCorrente(), ColonnaParola));
  cella.moveTopLeft(Gitter1->viewport()->mapTo(campo_, cella.topLeft()));
  Text1->setGeometry(cella);
  const int larghezza =
      NoniDelleColonne[ColonnaDefinizione] * cella.width() / NoniDelleColonne[ColonnaParola];
  Text2->setGeometry(cella.right() + 1 + FraCaselle, cella.top(), larghezza - MenoInText2,
                     cella.height());
  const int sopra = cella.top() - Command1->height();
  Command1->move(cella.left(), sopra >= 0 ? sopra : cella.bottom() + 1);
  Command2->move(Command1->geometry().right() + 1 + FraCaselle, Command1->y());
}

// In ninths of the table's width. In large types the first column takes from the last one what the
// highest number needs.
void TelarBro::ImpostaColonne() {
  constexpr int Noni = 9;
  const int larghezza = Gitter1->viewport()->width();
  const auto parte = [&](int c) { return larghezza * NoniDelleColonne[c] / Noni; };
  const int numero = std::max(parte(0), LarghezzaNumero());
  Gitter1->setColumnWidth(0, numero);
  Gitter1->setColumnWidth(ColonnaParola, parte(ColonnaParola));
  Gitter1->setColumnWidth(ColonnaDefinizione,
                          std::max(larghezza - numero - parte(ColonnaParola), 0));
}

int TelarBro::LarghezzaNumero() const {
  constexpr int Margine = 5;  // pixels on each side of the text of a cell, at least
  if (RiferimentoRiga.empty()) return 0;
  const QString piuLunga = AQt(bozza_.Sigla(RiferimentoRiga.back()));
  return Gitter1->fontMetrics().horizontalAdvance(piuLunga) + 2 * Margine;
}

// --- The crossword ---

void TelarBro::Griglia() {
  evidente_ = nullptr;
  DisegnaSchema();
  int riga = 0;
  for (const Slot& slot : RiferimentoRiga) {
    Scrivi(*Gitter1, riga, 0, bozza_.Sigla(slot));
    Scrivi(*Gitter1, riga, ColonnaParola, bozza_.ParolaDi(slot));
    Scrivi(*Gitter1, riga, ColonnaDefinizione, bozza_.DefinizioneDi(slot));
    Gitter1->item(riga, 0)->setBackground(palette().button());
    ++riga;
  }
  if (Gitter1->currentRow() < 0) Gitter1->setCurrentCell(0, ColonnaParola);
}

void TelarBro::DisegnaSchema() {
  DisegnaSchemaPiccolo(Picture1->Superficie(), bozza_.Derivata(), evidente_);
}

int TelarBro::RigaCorrente() const {
  const int riga = Gitter1->currentRow();
  return riga < static_cast<int>(RiferimentoRiga.size()) ? riga : -1;
}

// --- Editing a row ---

void TelarBro::ApriModificaRiga() {
  const int riga = RigaCorrente();
  if (riga < 0) return;
  ImpostaColonne();
  Gitter1->scrollToItem(Gitter1->item(riga, ColonnaParola));
  CliccaGitter();
  DisponiModifica();
  MostraModifica(true);
  Text1->selectAll();
  Text1->setFocus();
}

void TelarBro::CliccaGitter() {
  const Slot& slot = RiferimentoRiga[static_cast<std::size_t>(RigaCorrente())];
  Text1->setMaxLength(slot.lunghezza);
  Text1->setText(AQt(bozza_.ParolaDi(slot)));
  Text2->Mostra(bozza_.DefinizioneDi(slot));
  Label3->setText(AQt(bozza_.SiglaEstesa(slot)));
  evidente_ = &slot;
  DisegnaSchema();
}

void TelarBro::MostraModifica(bool visibile) {
  const QWidget* conFuoco = focusWidget();
  for (QWidget* controllo : std::initializer_list<QWidget*>{Text1, Text2, Command1, Command2}) {
    if (!visibile && controllo == conFuoco) Gitter1->setFocus();
    controllo->setVisible(visibile);
    if (visibile) controllo->raise();
  }
}

bool TelarBro::RigaApertaCambiata() const {
  if (!InModifica() || RigaCorrente() < 0) return false;
  const Slot& slot = RiferimentoRiga[static_cast<std::size_t>(RigaCorrente())];
  return DaQt(Text1->text()) != bozza_.ParolaDi(slot) ||
         Text2->Definizione() != bozza_.DefinizioneDi(slot);
}

// What was written into an open row, or picked for it, counts as wanted, also without Varia. False
// when it is refused, which has been told.
bool TelarBro::ConfermaRigaAperta() {
  if (!RigaApertaCambiata()) return true;
  Varia();
  return !InModifica();
}

bool TelarBro::DefinizioneScrivibile() {
  if (Text2->Definizione()) return true;
  AvvisaDefinizioneNonScrivibile();
  MostraModifica(true);
  Text2->setFocus();
  return false;
}

void TelarBro::Varia() {
  const int riga = RigaCorrente();
  if (riga < 0 || !DefinizioneScrivibile()) return;
  const Slot& slot = RiferimentoRiga[static_cast<std::size_t>(riga)];
  if (!VariaRiga(bozza_, slot, {DaQt(Text1->text()), *Text2->Definizione()})) {
    MostraModifica(true);
    Text1->setFocus();
    return;
  }
  Griglia();
  MostraModifica(false);
}

void TelarBro::Cerca() {
  if (const auto voci = CercaVoci(DaQt(Text1->text()))) MostraVoci(*voci);
}

void TelarBro::MostraVoci(const std::vector<VoceDefinizione>& voci) {
  Menudef->clear();
  Menud1.clear();
  const QFontMetrics misure(Menudef->font());
  const int larghezza = screen()->availableGeometry().width() * 3 / 4;
  for (const auto& [didascalia, definizione] : voci) {
    const QString testo = misure.elidedText(InUnaRiga(didascalia), Qt::ElideRight, larghezza);
    QAction* voce = Menudef->addAction(ComeVoceDiMenu(testo));
    voce->setObjectName(QStringLiteral("Menud1_%1").arg(Menud1.size()));
    voce->setData(AQt(definizione));
    Menud1.push_back(voce);
  }
  if (voci.empty()) Menudef->addAction(QStringLiteral("Nessuna definizione"))->setEnabled(false);
  Menudef->popup(Text2->mapToGlobal(QPoint(0, Text2->height())));
}

// --- Events ---

bool TelarBro::TastoInGitter1(const QKeyEvent& evento) {
  if (SoloDiPassaggio(evento)) return false;
  MostraModifica(false);
  if (Invio(evento) || evento.key() == Qt::Key_F2) {
    ApriModificaRiga();
    return true;
  }
  return evento.key() == Qt::Key_Escape;  // one too many must not cost the changes
}

bool TelarBro::TastoInText1(const QKeyEvent& evento) {
  if (Invio(evento)) {
    MostraModifica(false);
    Varia();
    return true;
  }
  const QChar scritto = Digitata(evento);
  const QChar lettera = scritto.toUpper();
  const bool ammesso = scritto.isNull() || scritto == u'.' || (lettera >= u'A' && lettera <= u'Z');
  return !ammesso;
}

bool TelarBro::TastoInText2(const QKeyEvent& evento) {
  if (!Invio(evento)) return false;
  if (!DefinizioneScrivibile()) return true;
  Varia();
  MostraModifica(false);
  return true;
}

bool TelarBro::eventFilter(QObject* oggetto, QEvent* evento) {
  const QEvent::Type tipo = evento->type();
  if (tipo == QEvent::KeyPress) {
    const auto& tasto = static_cast<const QKeyEvent&>(*evento);
    if (oggetto == Gitter1) return TastoInGitter1(tasto);
    if (oggetto == Text1) return TastoInText1(tasto);
    if (oggetto == Text2) return TastoInText2(tasto);
  } else if (oggetto == Gitter1->viewport()) {
    if (tipo == QEvent::MouseButtonPress) MostraModifica(false);
    if (tipo == QEvent::MouseButtonPress || tipo == QEvent::Resize) ImpostaColonne();
  } else if (oggetto == campo_ && tipo == QEvent::Resize) {
    Disponi();
  }
  return FinestraModale::eventFilter(oggetto, evento);
}

}  // namespace telarium
