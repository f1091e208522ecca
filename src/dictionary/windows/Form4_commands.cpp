#include "dictionary/dictionary_writer.h"
#include "dictionary/maintenance.h"
#include "dictionary/section_scan.h"
#include "dictionary/sorted_words.h"
#include "dictionary/windows/Form4.h"
#include "model/pointer.h"
#include "model/state.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/qt/qt_text.h"
#include "platform/text.h"

// What the commands of the manager do.
namespace telarium {
namespace {

constexpr Colore ColoreBordo = 0xA0A0A0;
constexpr Colore ColoreVariazioni = 0x000080;  // 4 of the 16-colour palette

void Arrossa(QLabel& etichetta) {
  QPalette tavolozza = etichetta.palette();
  tavolozza.setColor(QPalette::WindowText, QColor(ColoreVariazioni & 0xFF, 0, 0));
  etichetta.setPalette(tavolozza);
}

QString TestoConto(int conto, const char* parole) {
  return QStringLiteral("(%1) %2").arg(conto).arg(QLatin1StringView(parole));
}

// As a reading or an import counts, and as a change of the list does.
constexpr const char* ParoleLette = "parole";
constexpr const char* ParoleCambiate = "Parole";

bool Confermata(std::string testo) {
  return ChiUsa().MostraMessaggio({.testo = std::move(testo), .pulsanti = Pulsanti::OkAnnulla}) ==
         Risposta::Ok;
}

void Abilita(std::initializer_list<QWidget*> controlli, bool abilitati) {
  for (QWidget* controllo : controlli)
    controllo->setEnabled(abilitati);
}

}  // namespace

// --- Long work ---

// What would begin another piece of work inside this one, or change the lists under a writing,
// waits for its end.
void Form4::Inizia(Lavoro lavoro) {
  lavoro_ = lavoro;
  FermaLettura = Falso;
  // From a control that is disabled the focus would go on to the next one, and a list of files
  // selects something then.
  fuoco_ = focusWidget();
  setFocus();
  Abilita({File1, File2, Command4, Command6, Command7, Command8}, false);
  if (lavoro == Lavoro::Ricostruzione)
    Abilita({Command1, Command2, Text1, Command3, Command5}, false);
}

void Form4::Finisci() {
  lavoro_ = Lavoro::Nessuno;
  Abilita({File1, File2, Command2, Text1, Command3, Command6, Command7}, true);
  Abilita({Command1, Command4, Command5, Command8}, letto_);
  if (fuoco_) fuoco_->setFocus();
}

// Lets the message loop run when it is time; false once the window is to close.
bool Form4::Cedi() {
  if (cadenza_.Scaduta()) {
    ImpostaPuntatoreMouse(PuntatoreFreccia);
    ChiUsa().CediAiMessaggi();
    ImpostaPuntatoreMouse(PuntatoreClessidra);
  }
  return !FermaLettura;
}

void Form4::DipingiBarra(double parte, Colore colore) {
  Superficie& barra = Picture1->Superficie();
  const double larghezza = barra.LarghezzaSuperficie(), altezza = barra.AltezzaSuperficie();
  if (parte > 0) barra.RiquadroPieno(0, 0, larghezza * parte, altezza, colore);
  barra.Riquadro(0, 0, larghezza - 1, altezza - 1, ColoreBordo);
}

// --- Reading ---

void Form4::LeggiDizio() {
  const Clessidra clessidra;
  Inizia(Lavoro::Lettura);
  Label3->setText(AQt(Unisci("In corso la lettura del dizionario ",
                             TestoPercorso(dizionario_.NomeDizionario()), " ...")));
  TotaleParole = 0;
  bool intero = true;
  for (std::size_t lista = 0; lista < parole_.size(); ++lista) {
    if (!LeggiSezione(lista, intero)) return;
  }
  letto_ = intero;
  if (!intero) {  // a rebuild over a part would cost the rest
    Avvisa(dizionario_.TestoIlleggibile());
    SvuotaListe();
    NullaDaMostrare();
  }
  Finisci();
  Label3->clear();
}

// False when the user has had enough; the window is closing then.
bool Form4::LeggiSezione(std::size_t lista, bool& intero) {
  DipingiBarra(1, ColoreGiallo);
  if (!Cedi()) return false;
  const int conto = dizionario_.UltimoNumero(LunghezzaDi(lista));
  ScansioneSezione scansione(dizionario_, LunghezzaDi(lista));
  BloccoDiParole blocco;
  int lette = 0;
  while (scansione.Prossimo(blocco)) {
    std::vector<std::string> parole;
    for (int i = 0; i < blocco.quante; ++i)
      parole.emplace_back(blocco.Parola(i), static_cast<std::size_t>(blocco.lunghezza));
    Combo1[lista]->Aggiungi(std::move(parole));
    lette += blocco.quante;
    TotaleParole += blocco.quante;
    DipingiBarra(double(lette) / conto, ColoreBlu);
    if (!Cedi()) return false;
  }
  intero = intero && scansione.Leggibile();
  if (!parole_[lista].empty()) Combo1[lista]->Scrivi(parole_[lista].front());
  Label2[lista]->setText(TestoConto(lette, ParoleLette));
  MostraTotale();
  return true;
}

// A file of the lists may be gone by now, which is no reason to end the program.
bool Form4::Presente(const Percorso& nome) {
  if (TrovaFile(dizionario_.Cartella(), nome)) return true;
  Avvisa(Unisci("Il dizionario ", TestoPercorso(nome), " non c'è più."_cp), {}, Icona::Avviso);
  for (ListaFile* file : {File1, File2})
    file->Vai(dizionario_.Cartella());
  return false;
}

void Form4::ApriDiSistema() {
  const auto nome = File1->Scelto();
  constexpr std::size_t otto = 8 - MinLunghezza;
  const bool altro = nome && *nome != dizionario_.NomeDizionario();
  if (nome && (parole_[otto].empty() || altro) && Presente(*nome)) {
    ApriEMostra(*nome, LinguaDelDizionario(*nome).value_or(dizionario_.LinguaDizionario()));
  }
  RiaprePronto();
}

void Form4::ApriPrivato() {
  const auto nome = File2->Scelto();
  const bool altro = nome && *nome != dizionario_.NomeDizionario();
  if (nome && (!letto_ || altro) && Presente(*nome)) {
    ApriEMostra(*nome, LinguaDeiPrivati);
  }
  RiaprePronto();
}

// A file that cannot be read, which has been told, leaves nothing to change or to write. False
// then.
bool Form4::ApriEMostra(const Percorso& nome, std::int16_t lingua) {
  dizionario_.Nomina(nome, lingua);
  SvuotaListe();
  letto_ = false;
  if (ApriDizionario(dizionario_)) {
    LeggiDizio();
    return true;
  }
  NullaDaMostrare();
  Finisci();
  return false;
}

void Form4::NullaDaMostrare() {
  TotaleParole = 0;
  AzzeraDidascalie();
  MostraTotale();
}

void Form4::RiaprePronto() {
  Abilita({Command1, Command4, Command5}, letto_);
  MostraNome();
  SegnaAperto();
}

// Of both lists of files the open dictionary alone is selected.
void Form4::SegnaAperto() {
  for (ListaFile* file : {File1, File2}) {
    file->clearSelection();
    file->Scegli(dizionario_.NomeDizionario());
  }
}

// --- Single words ---

void Form4::ChiediParola() {
  Text1->show();
  Command3->show();
  Text1->clear();
  Text1->setFocus();
}

void Form4::AggiungiParola() {
  const std::string parola = Maiuscole(SenzaSpazi(DaQt(Text1->text())));
  if (!LunghezzaAmmessa(static_cast<int>(parola.size()))) {
    Avvisa("Nel dizionario sono ammesse solamente parole formate da 3 a 15 caratteri.");
  } else {
    const std::size_t lista = parola.size() - MinLunghezza;
    if (PostoDellaParola(parole_[lista], parola)) {
      Avvisa(Unisci("La parola '", parola, "' esiste già nel dizionario."_cp));
      return Text1->clear();
    }
    Combo1[lista]->Aggiungi(parola);
    Avvisa(Unisci("La parola '", parola,
                  "' è stata momentaneamente aggiunta al dizionario, cliccare sul bottone 'Crea "
                  "dizionario' per la ricostruzione definitiva sul disco."_cp));
    ContaUnaParola(lista, 1);
    if (parole_[lista].size() > MaxParole) AvvisaListaPiena(lista);
  }
  Command3->hide();
  Text1->hide();
  Command1->setFocus();
}

// The rebuild would refuse it, and until then nothing would say so.
void Form4::AvvisaListaPiena(std::size_t lista) {
  Label3->setText(QStringLiteral("Le parole di %1 lettere sono più di %2: toglierne una prima di "
                                 "ricreare il dizionario")
                      .arg(LunghezzaDi(lista))
                      .arg(MaxParole));
}

void Form4::EliminaParola() {
  const auto lista = static_cast<std::size_t>(ListaCorrente);
  const auto scelta = Combo1[lista]->Scelta();
  if (!scelta) return;
  if (!Confermata("Si desidera veramente eliminare la parola: " + parole_[lista][*scelta])) return;
  Combo1[lista]->Togli(*scelta);
  ContaUnaParola(lista, -1);
  Avvisa(
      "Parola eliminata, cliccare su 'Ricostruzione dizionario' per la ricostruzione effettiva del "
      "dizionario");
}

// The label itself holds the count that a change goes on from.
void Form4::ContaUnaParola(std::size_t lista, int variazione) {
  const std::string didascalia = DaQt(Label2[lista]->text());
  const int conto = didascalia.empty() ? 0 : ValoreNumerico(didascalia.substr(1));
  Label2[lista]->setText(TestoConto(conto + variazione, ParoleCambiate));
  Arrossa(*Label2[lista]);
  TotaleParole += variazione;
  MostraTotale();
  Arrossa(*Label4);
}

// --- Rebuild ---

void Form4::RicreaDizionario() {
  if (!Confermata("Attenzione non interrompere assolutamente la fase di creazione del dizionario! "
                  "Su computer lenti questa operazione potrebbe durare diversi minuti. Si desidera "
                  "ricreare il dizionario principale?")) {
    return Avvisa("Operazione annulata.");
  }
  Inizia(Lavoro::Ricostruzione);
  Label3->setText(AQt(Unisci("In corso la scrittura del dizionario ",
                             TestoPercorso(dizionario_.NomeDizionario()), "...")));
  ScriviSulDisco();
  Finisci();
}

void Form4::ScriviSulDisco() {
  const EsitoDizionario esito = ScriviDizionario(
      dizionario_.PercorsoDizionario(), parole_,
      [this](std::size_t lista, std::size_t fatte) { SegueScrittura(lista, fatte); });
  DipingiBarra(1, ColoreBianco);
  if (!esito.errore.empty()) {
    Label3->setText(QStringLiteral("Il dizionario sul disco resta com'era"));
    return Avvisa(esito.errore, {}, Icona::Avviso);
  }
  if (ApriDizionario(dizionario_))
    Label3->setText(QStringLiteral("Dizionario riscritto correttamente"));
}

void Form4::SegueScrittura(std::size_t lista, std::size_t fatte) {
  const std::size_t tutte = parole_[lista].size();
  if (fatte == 0) {
    if (lista == 0) SvuotaConteggi();
    DipingiBarra(1, ColoreBianco);
  }
  if (tutte > 0) DipingiBarra(double(fatte) / double(tutte), ColoreBlu);
  if (fatte == tutte) Label2[lista]->setText(TestoConto(static_cast<int>(tutte), ParoleCambiate));
  if (cadenza_.Scaduta()) ChiUsa().CediAiMessaggi();
}

// --- Import ---

void Form4::ImportaListe() {
  Inizia(Lavoro::Importazione);
  std::error_code errore;
  std::size_t lista = 0;
  for (; !errore && lista < parole_.size(); ++lista) {
    errore = ImportaLista(lista);
    if (cadenza_.Scaduta()) ChiUsa().CediAiMessaggi();
    if (FermaLettura) return;
  }
  Finisci();
  if (errore) {
    Avvisa(ConCausa(
        "Per usare questa utility bisogna prima preparare una serie di files di testo 3.txt, "
        "4.txt, "
        "5.txt .... 15.txt contenenti le parole che si vogliono importare",
        ListaDaImportare(dizionario_.Cartella(), LunghezzaDi(lista - 1)), errore));
  }
}

// Gives why the list could not be read.
std::error_code Form4::ImportaLista(std::size_t lista) {
  Combo1[lista]->Svuota();
  std::error_code errore;
  auto importata =
      LeggiListaDaImportare(ListaDaImportare(dizionario_.Cartella(), LunghezzaDi(lista)), errore);
  if (!importata) return errore;
  Combo1[lista]->Aggiungi(std::move(importata->parole));
  Label2[lista]->setText(TestoConto(importata->righe, ParoleLette));
  return {};
}

// --- Private dictionaries ---

namespace {

void AvvisaNomeNonValido(const Percorso& nome, std::string_view causa) {
  Avvisa(
      ConCausa("Nome del file specificato NON valido oppure disco di sola lettura.", nome, causa));
}

}  // namespace

void Form4::CreaPrivato() {
  const auto risposta = ChiUsa().ChiediTesto(
      {.richiesta = "Inserire nome del dizionario privato che si vuole creare :"});
  if (!risposta || risposta->empty()) return;
  const auto nome = NomeDizionarioPrivato(*risposta);
  if (!nome) return AvvisaNomeNonValido(AUtf8(*risposta), "il nome ha segni non ammessi");
  const auto esistente = TrovaFile(dizionario_.Cartella(), *nome);
  const std::error_code errore =
      esistente ? std::error_code() : CreaDizionarioVuoto(dizionario_.Cartella() / *nome);
  if (errore) return AvvisaNomeNonValido(dizionario_.Cartella() / *nome, DescrizioneErrore(errore));
  if (esistente) return ApriEsistente(esistente->filename());
  ApriEMostra(*nome, LinguaDeiPrivati);
  AzzeraDidascalie();
  MostraNome();
  File2->Vai(dizionario_.Cartella());
  SegnaAperto();
}

// One that is open keeps its changes.
void Form4::ApriEsistente(const Percorso& nome) {
  if (letto_ && nome == dizionario_.NomeDizionario())
    return Label3->setText(QStringLiteral("Questo dizionario è già aperto"));
  if (ApriEMostra(nome, LinguaDeiPrivati))
    Label3->setText(QStringLiteral("Questo dizionario esisteva già: è stato aperto"));
  MostraNome();
  SegnaAperto();
}

void Form4::CancellaPrivato() {
  const auto nome = File2->Scelto();
  if (!nome) return;
  const std::string testo = TestoPercorso(*nome);
  if (Maiuscole(testo) == Maiuscole(TestoPercorso(dizionario_.NomeDizionario()))) {
    return Avvisa(Unisci(
        "Dizionario ", testo,
        " aperto in questo momento, chiuderlo e selezionarne un altro prima di cancellarlo."));
  }
  if (!Confermata(Unisci("Si desidera veramente cancellare il dizionario privato : ", testo,
                         "?  -  Questa operazione è irreversibile quindi il file non potrà più "
                         "essere ripristinato."_cp))) {
    return;
  }
  if (!CancellaDizionario(dizionario_.Cartella() / *nome)) {
    Avvisa(Unisci("Impossibile cancellare il dizionario personale : ", testo,
                  " - Disco/File probabile sola lettura."));
  }
  File2->Vai(dizionario_.Cartella());
}

// --- Labels and lists ---

void Form4::SvuotaListe() {
  for (ElencoDiParole* lista : Combo1)
    lista->Svuota();
}

void Form4::AzzeraDidascalie() {
  for (std::size_t lista = 0; lista < Label1.size(); ++lista)
    Label1[lista]->setText(QStringLiteral("%1 Caratt.").arg(LunghezzaDi(lista)));
  SvuotaConteggi();
}

void Form4::SvuotaConteggi() {
  for (QLabel* conto : Label2)
    conto->clear();
}

void Form4::MostraNome() {
  const std::string nome = TestoPercorso(dizionario_.NomeDizionario());
  Label9->setText(AQt(nome.substr(0, nome.find('.'))));
  Label9->setToolTip(ComeSuggerimento(Label9->text()));
}

void Form4::MostraTotale() {
  Label4->setText(AQt(ConMigliaia(TotaleParole)));
}

// --- Exit ---

void Form4::reject() {
  if (lavoro_ == Lavoro::Ricostruzione) return;
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  ChiUsa().CediAiMessaggi();
  FermaLettura = Vero;
  FinestraModale::reject();
}

}  // namespace telarium
