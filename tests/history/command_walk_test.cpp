#include <cstdlib>
#include <random>

#include "clues/bulk.h"
#include "clues/table_view.h"
#include "crossworddialogs/crossword_archive.h"
#include "crossworddialogs/new_crossword.h"
#include "editor/activation.h"
#include "editor/cell_editing.h"
#include "editor/commands.h"
#include "editor/file_commands.h"
#include "editor/fill_command.h"
#include "editor/history_commands.h"
#include "editor/resizing.h"
#include "editor/settings.h"
#include "editor/startup.h"
#include "editor/word_pointing.h"
#include "history/chronology.h"
#include "history/difference.h"
#include "history/file_state.h"
#include "model/crossword_file.h"
#include "model/crossword_writer.h"
#include "model/documento.h"
#include "output/web_opening.h"
#include "platform/digest.h"
#include "support/clue_store.h"
#include "support/crossword_page.h"
#include "support/drawn_crossword.h"
#include "support/recording_window.h"
#include "support/telarium_test.h"

// A random walk of the commands themselves, as a user without a plan gives them, on the open
// document. The history has to take each of them back as one step.
namespace telarium {
namespace {

// A user who answers whatever is asked by chance.
class AimlessUser : public Utente {
 public:
  int Below(int limit) { return std::uniform_int_distribution(0, limit - 1)(chance_); }
  template <class T>
  const T& OneOf(const std::vector<T>& things) {
    return things[static_cast<std::size_t>(Below(static_cast<int>(things.size())))];
  }
  std::string Text(std::string_view characters, int length) {
    std::string text;
    while (std::ssize(text) < length)
      text += characters[static_cast<std::size_t>(Below(static_cast<int>(characters.size())))];
    return text;
  }

  Risposta MostraMessaggio(const Messaggio& message) override {
    static const std::map<Pulsanti, std::vector<Risposta>> buttons = {
        {Pulsanti::Ok, {Risposta::Ok}},
        {Pulsanti::OkAnnulla, {Risposta::Ok, Risposta::Annulla}},
        {Pulsanti::SiNo, {Risposta::Si, Risposta::No}},
        {Pulsanti::SiNoAnnulla, {Risposta::Si, Risposta::No, Risposta::Annulla}}};
    return OneOf(buttons.at(message.pulsanti));
  }
  std::optional<std::string> ChiediTesto(const RichiestaDiTesto&) override {
    return Below(8) > 0 ? std::optional("http://prova.it") : std::nullopt;
  }
  Colore ScegliColore(Colore before) override {
    return OneOf<Colore>({NessunColore, before, 255, 65280});
  }
  std::unique_ptr<Attesa> IniziaAttesa(const std::string&) override {
    struct Wait : Attesa {
      bool Prosegue(std::size_t) override { return true; }
      bool ProsegueFino(double) override { return true; }
    };
    return std::make_unique<Wait>();
  }
  void FormaPuntatore(int) override {}
  void SegnaleAcustico() override {}
  void CediAiMessaggi() override {}

 private:
  std::mt19937 chance_{1};
};

class AimlessPlatform : public ScriptedPlatform {
 public:
  AimlessPlatform() { hasWindow = true; }
  AimlessUser aimless;
  Utente& ChiUsa() override { return aimless; }
};

// A state of one of the crosswords, which are counted as they are opened.
struct Shot {
  int crossword = 0;
  std::string value;
  bool operator==(const Shot&) const = default;
};

// What the history hears, and with it the plain way to undo: whole copies of all states.
class Listener : public OsservatoreDelDocumento {
 public:
  explicit Listener(const Percorso& folder)
      : history_(IlDocumento(), folder,
                 [] { return std::chrono::sys_seconds(std::chrono::seconds(1)); }) {
    IlDocumento().Osserva(this);
    ImpostaCronologia(&history_);
  }
  ~Listener() override { ImpostaCronologia(nullptr); }

  Shot Take() const { return {crossword_, DifferenzaTra({}, IlDocumento().Valore())}; }

  void Modificato(const std::string& why) override {
    history_.Modificato(why);
    Keep(why);
    ++steps;
  }
  void Sostituito(const std::string& why) override {
    history_.Sostituito(why);
    if (crossword_++ > 0) {
      Keep(why);
    } else {
      last_ = Take();
    }
    last_.crossword = crossword_;
    names_[crossword_] = NomeCruciverba;
    redo_.clear();
  }
  void Registrato() override {
    history_.Registrato();
    names_[crossword_] = NomeCruciverba;
  }

  // The value has changed by steps alone, and the history can take the last one back.
  void Check() {
    EXPECT_TRUE(Take() == last_) << "changed without a step";
    if (!undo_.empty()) {
      EXPECT_EQ(history_.DaAnnullare(), undo_.back().why);
      EXPECT_NE(history_.DaAnnullare(), "");
    }
  }

  void Undo() {
    if (!undo_.empty()) Move(undo_, redo_, AnnullaModifica);
  }
  void Redo() {
    if (!redo_.empty()) Move(redo_, undo_, RipetiModifica);
  }
  // Where it leads the plain way does not know the states around.
  void GoTo(int chance) {
    const Linea* line = history_.LineaAperta();
    if (!line) return;
    const std::size_t place = static_cast<std::size_t>(chance) % line->Quanti();
    VaiAllaModifica(place);
    Arrive({crossword_, DifferenzaTra({}, (*line)[place].cruciverba)});
    undo_.clear();
    redo_.clear();
  }

  int steps = 0;

 private:
  struct Kept {
    std::string why;
    Shot shot;
  };

  void Keep(const std::string& why) {
    undo_.push_back({why, std::exchange(last_, Take())});
    redo_.clear();
  }

  void Move(std::vector<Kept>& from, std::vector<Kept>& to, void (*move)()) {
    const Kept there = from.back();
    from.pop_back();
    to.push_back({there.why, last_});
    move();
    Arrive(there.shot);
  }

  void Arrive(const Shot& there) {
    crossword_ = there.crossword;
    last_ = there;
    EXPECT_TRUE(Take() == there) << "another crossword";
    EXPECT_EQ(NomeCruciverba, names_[crossword_]);
    const StatoDelDocumento& state = IlDocumento().Stato();
    EXPECT_EQ(SchemaModificato != Falso, DiversoDalFile(state.cruciverba, state.file));
    if (CartellaIstantanea.empty()) {
      EXPECT_EQ(IlDocumento().Istantanea().impronta, ImprontaDi(TestoDelCruciverba().value()));
    }
  }

  Cronologia history_;
  int crossword_ = 0;
  std::map<int, Percorso> names_;
  Shot last_;
  std::vector<Kept> undo_, redo_;
};

class CommandWalk : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    ImpostaPiattaforma(&walked_);
    ImpostazioniIniziali();
    GiaAttivata = Vero;
    OpenDictionary({"ALA", "ARA", "ORA", "ERA", "ALE", "REO", "CASA", "SOLE", "MELA", "RANA"});
    MakeStore(
        "ALA\tF\tServe per volare\nREO\tD\tNon innocente\nAE\tF\tDittongo\nOA\tF\tIniziali\n"
        "EO\tF\tIo da poeta\nEO\tF\tAltro io\nAO\tF\tAosta\nEE\tD\tUgualmente");
    WriteFile(NomeModelliIniziale, "..A\r\n.*.\r\n...\r\n#\r\n....\r\n*...\r\n...*\r\n#\r\n");
    for (int i = 0; i < 4; ++i)
      WriteFromOutside(InFolder("file" + std::to_string(i) + ".tlrm"));
    window_.whenShown = [this] {
      InWindow();
      AccodaAttivazione();
    };
    window_.whenEdited = [this](const ParolaDefinita& word) { return Edited(word); };
  }

  void Step();
  void CheckAll();

 private:
  int Below(int limit) { return user_.Below(limit); }
  Percorso AnyFile() { return InFolder("file" + std::to_string(Below(5)) + ".tlrm"); }

  std::string AnyCrossword() {
    std::vector<std::string> rows(static_cast<std::size_t>(3 + Below(4)));
    const int columns = 3 + Below(4);
    for (std::string& row : rows)
      row = user_.Text("AEO..#", columns);
    Cruciverba crossword = DrawnCrossword(rows);
    for (int i = Below(5); i > 0; --i)
      crossword.definizioni.Imposta(user_.Text("abc ", 9), 1 + Below(3), 1 + Below(3),
                                    1 + Below(2));
    crossword.colori.Imposta(Below(256), 1 + Below(3), 1 + Below(3));
    return ContenutoDelFile(crossword).value();
  }
  // Damaged now and then.
  std::string AnyBytes() {
    std::string bytes = AnyCrossword();
    if (Below(5) == 0)
      bytes.resize(static_cast<std::size_t>(Below(static_cast<int>(bytes.size()))));
    return bytes;
  }
  void WriteFromOutside(const Percorso& file) {
    EXPECT_FALSE(ScriviFile(file, AnyBytes(), Permanenza::Provvisoria));
  }

  // A point of any cell, mostly of the grid, in one of its halves.
  std::pair<double, double> AnyPoint() {
    const Geometria& geometry = GeometriaDelloSchema();
    const double x = geometry.BordoSinistro(1 + Below(NumColonne + 1));
    const double y = geometry.BordoAlto(1 + Below(NumRighe + 1));
    return Below(2) ? std::pair(x + 0.8 * LatoCasella, y + 0.2 * LatoCasella)
                    : std::pair(x + 0.2 * LatoCasella, y + 0.8 * LatoCasella);
  }

  ParolaDefinita AnyWordFor(const ParolaDefinita& word) {
    ParolaDefinita other = word;
    if (Below(2)) other.parola = user_.Text("AEO.", static_cast<int>(word.parola.size()));
    if (Below(2)) other.definizione = user_.Text("def -\r\n", Below(12));
    return other;
  }
  std::optional<ParolaDefinita> Edited(const ParolaDefinita& word) {
    return Below(6) ? std::optional(AnyWordFor(word)) : std::nullopt;
  }

  // What the user does in a window.
  void InWindow() {
    switch (window_.shown.back()) {
      case Modale::FormNew:
      case Modale::FormModels:
        if (Below(2)) {
          NuovoVuoto(2 + Below(8), 2 + Below(8));
        } else {
          NuovoDaModello(InFolder(NomeModelliIniziale), Below(3));
        }
        break;
      case Modale::Form2:
        if (Below(6) == 0) return RinunciaAdAprire();
        static_cast<void>(ApriFileDiCruciverba(AnyFile()));
        break;
      case Modale::TelarSav:
        static_cast<void>(
            SalvaNellArchivio(InFolder(""), AnyFile().filename(),
                              Below(2) ? AutoreDelCruciverba() : user_.Text("Autore", 6)));
        break;
      case Modale::TelarBro:
        InTable();
        break;
      default:
        break;
    }
  }

  void InTable() {
    BozzaDiTabella draft = ApriBozza();
    for (int i = Below(6); i > 0 && !draft.Parole().empty(); --i) {
      const Slot& slot = user_.OneOf(draft.Parole());
      VariaRiga(draft, slot, AnyWordFor({draft.ParolaDi(slot), draft.DefinizioneDi(slot)}));
    }
    if (Below(3) > 0) ConfermaBozza(draft);
  }

  void TurnCell() {
    if (Below(3) == 0) (Below(2) ? AttivaCasellaNera : AttivaCasellaBianca)();
    Press();
  }
  void EditWord() {
    EntraInModifica();
    Press();
  }
  void Press() {
    const auto [x, y] = AnyPoint();
    PassaSullaSuperficie(x, y);
    PremiSullaSuperficie(Below(4) ? TastoMouse::Sinistro : TastoMouse::Destro, x, y);
  }
  void Resize() {
    user_.OneOf<void (*)()>({AggiungiColonna, AggiungiRiga, TogliColonna, TogliRiga})();
  }
  void Fill() {
    int patience = Below(40);
    ComandoEstrazione fill([&](const AvanzamentoEstrazione&) { return patience-- > 0; });
    fill.ProvaInfinita = Below(2) ? Vero : Falso;
    fill.EstraiSchema();
  }
  void OpenFromWeb() {
    walked_.machine.fetches = PageOf(AnyBytes());
    ApriDaIndirizzo();
  }
  void Fetch() { Prelevadefinizioni(user_.OneOf<std::int16_t>({ModoTutte, ModoFacili})); }
  // An activation takes it over.
  void ChangeSnapshot() {
    if (Below(4) == 0) {
      EliminaIstantanea();
    } else if (CartellaIstantanea.empty()) {
      WriteFromOutside(PercorsoIstantanea());
    }
    AccodaAttivazione();
  }
  void LoseSnapshotFolder() {
    CartellaIstantanea = CartellaIstantanea.empty() ? InFolder("manca") : Percorso();
  }

  AimlessPlatform walked_;
  AimlessUser& user_ = walked_.aimless;
  RecordingWindow window_;
  std::mt19937 order_{2};
  std::optional<Listener> listener_;

 public:
  struct Command {
    int weight;
    const char* name;
    void (*run)(CommandWalk&);
    int steps = 1;  // at most
  };
  static const std::vector<Command> commands;
};

const std::vector<CommandWalk::Command> CommandWalk::commands = {
    {20, "turn a cell", [](CommandWalk& w) { w.TurnCell(); }},
    {20, "edit a word", [](CommandWalk& w) { w.EditWord(); }},
    {4, "resize", [](CommandWalk& w) { w.Resize(); }},
    {3, "fill", [](CommandWalk& w) { w.Fill(); }},
    // The question whether to save may lead to a save, which may be by another author.
    {2, "new", [](CommandWalk&) { NuovoCruciverba(); }},
    {1, "models", [](CommandWalk&) { GestisciModelli(); }},
    {3, "open", [](CommandWalk&) { ApriConFinestra(); }},
    {1, "open from outside", [](CommandWalk& w) { ApriDaFuori(w.AnyFile()); }},
    {3, "open from the web", [](CommandWalk& w) { w.OpenFromWeb(); }},
    {4, "save", [](CommandWalk&) { SalvaCruciverba(); }},
    {2, "save as", [](CommandWalk&) { SalvaConNome(); }},
    {2, "fetch", [](CommandWalk& w) { w.Fetch(); }},
    {4, "table view", [](CommandWalk&) { ApriTabella(); }},
    {3, "snapshot from outside", [](CommandWalk& w) { w.ChangeSnapshot(); }},
    {1, "snapshot folder", [](CommandWalk& w) { w.LoseSnapshotFolder(); }},
    {1, "file from outside", [](CommandWalk& w) { w.WriteFromOutside(w.AnyFile()); }},
    {18, "undo", [](CommandWalk& w) { w.listener_->Undo(); }, 0},
    {10, "redo", [](CommandWalk& w) { w.listener_->Redo(); }, 0},
    {1, "go to", [](CommandWalk& w) { w.listener_->GoTo(w.Below(1 << 20)); }, 0},
};

void CommandWalk::Step() {
  if (!listener_) listener_.emplace(InFolder("passi"));
  static std::discrete_distribution<std::size_t> chosen = [] {
    std::vector<int> weights;
    for (const Command& command : commands)
      weights.push_back(command.weight);
    return std::discrete_distribution<std::size_t>(weights.begin(), weights.end());
  }();
  const Command& command = commands[chosen(order_)];
  SCOPED_TRACE(command.name);
  listener_->steps = 0;
  EseguiComandoDiFinestra([&] { command.run(*this); });
  EXPECT_LE(listener_->steps, command.steps);
  CheckAll();
}

// The given names show the document, as they would if they had never shown another one.
void CommandWalk::CheckAll() {
  listener_->Check();
  Documento& document = IlDocumento();
  EXPECT_FALSE(document.Modifica("", [](Cruciverba&) {})) << "a step without a change";
  static TavoleDelCruciverba fresh;
  fresh = {};
  fresh.Rispecchia({}, document.Valore(), Deriva(document.Valore()));
  for (int c = 1; c <= MaxColonne; ++c) {
    for (int r = 1; r <= MaxRighe; ++r) {
      ASSERT_EQ(fresh.lettera(c, r), LetteraCasella(c, r));
      ASSERT_EQ(fresh.colore(c, r), ColoreCasella(c, r));
      ASSERT_EQ(fresh.tipo(c, r) * 10000 + fresh.numero(c, r),
                TipoCasella(c, r) * 10000 + NumeroCasella(c, r));
      for (const int d : Direzioni) {
        ASSERT_EQ(fresh.parola(c, r, d), ParolaCasella(c, r, d));
        ASSERT_EQ(fresh.definizione(c, r, d), Definizione(c, r, d));
      }
    }
  }
  for (int i = 1; i <= RigheIntestazione + MaxRighe; ++i)
    ASSERT_EQ(fresh.schema(i), Schema(i)) << i;
}

TEST_F(CommandWalk, EachCommandIsOneStepThatUndoTakesBack) {
  const char* const wanted = std::getenv("TELARIUM_WALK_COMMANDS");
  const int count = wanted ? std::atoi(wanted) : 500;
  for (int i = 0; i < count && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    Step();
  }
}

}  // namespace
}  // namespace telarium
