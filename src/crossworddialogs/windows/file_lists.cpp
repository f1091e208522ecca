#include "crossworddialogs/windows/file_lists.h"

#include <QDir>
#include <QKeyEvent>
#include <QStorageInfo>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "platform/platform.h"
#include "platform/qt/qt_text.h"

namespace telarium {
namespace {

constexpr int RuoloPercorso = Qt::UserRole;

// A path as the data of an entry; what Qt's text of it cannot hold stays.
QVariant Dato(const Percorso& percorso) {
  return QByteArray::fromStdString(percorso.string());
}

Percorso PercorsoDi(const QVariant& dato) {
  return dato.toByteArray().toStdString();
}

void OrdinaPerNome(std::vector<Percorso>& nomi) {
  std::stable_sort(nomi.begin(), nomi.end(), [](const Percorso& uno, const Percorso& altro) {
    return PercorsoAQt(uno).compare(PercorsoAQt(altro), Qt::CaseInsensitive) < 0;
  });
}

// The folders that are no storage of the user's: where the system shows itself.
bool DelSistema(const QString& radice) {
  for (const char* cartella : {"/proc", "/sys", "/dev", "/run/lock", "/boot"}) {
    const QLatin1StringView nome(cartella);
    if (radice == nome || radice.startsWith(nome + u'/')) return true;
  }
  return false;
}

}  // namespace

ListaFile::ListaFile(std::string modello, QWidget* genitore)
    : QListWidget(genitore), modello_(std::move(modello)) {
  setUniformItemSizes(true);
  setTextElideMode(Qt::ElideMiddle);
  connect(this, &QListWidget::itemSelectionChanged, this, [this] {
    appenaScelta_ = true;
    SegnalaScelta();
  });
  connect(this, &QListWidget::itemClicked, this, [this] {
    if (!appenaScelta_) SegnalaScelta();
  });
}

void ListaFile::SegnalaScelta() {
  const auto scelto = Scelto();
  if (scelto && scelta_) scelta_(*scelto);
}

void ListaFile::Vai(const Percorso& cartella) {
  clear();
  cartella_ = cartella;
  nomi_ = ElencaFile(cartella, modello_);
  std::erase_if(nomi_, FileNascosto);
  OrdinaPerNome(nomi_);
  QStringList testi;
  for (const Percorso& nome : nomi_)
    testi.append(PercorsoAQt(nome));
  addItems(testi);
}

void ListaFile::mousePressEvent(QMouseEvent* evento) {
  appenaScelta_ = false;
  QListWidget::mousePressEvent(evento);
}

void ListaFile::Scegli(const Percorso& nome) {
  const auto voci = findItems(PercorsoAQt(nome), Qt::MatchFixedString);
  if (!voci.isEmpty()) setCurrentItem(voci.front());
}

std::optional<Percorso> ListaFile::Scelto() const {
  const int riga = currentRow();
  if (riga < 0 || !currentItem()->isSelected()) return std::nullopt;
  return nomi_[static_cast<std::size_t>(riga)];
}

// By the keyboard the first file can be chosen at once.
void ListaFile::focusInEvent(QFocusEvent* evento) {
  QListWidget::focusInEvent(evento);
  const Qt::FocusReason motivo = evento->reason();
  const bool daTastiera = motivo == Qt::TabFocusReason || motivo == Qt::BacktabFocusReason ||
                          motivo == Qt::ShortcutFocusReason;
  if (daTastiera && !Scelto()) setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
}

AlberoCartelle::AlberoCartelle(QWidget* genitore) : QTreeWidget(genitore) {
  setHeaderHidden(true);
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  connect(this, &QTreeWidget::itemDoubleClicked, this,
          [this](QTreeWidgetItem* voce) { ApriVoce(voce); });
}

bool AlberoCartelle::Vai(const Percorso& cartella) {
  std::vector<Percorso> contenute;
  if (ElencaCartelle(cartella, contenute)) return false;
  OrdinaPerNome(contenute);
  cartella_ = cartella;
  clear();
  const auto aggiungi = [this](QTreeWidgetItem* sopra, const Percorso& nome,
                               const Percorso& percorso, QStyle::StandardPixmap icona) {
    auto* voce = sopra ? new QTreeWidgetItem(sopra) : new QTreeWidgetItem(this);
    voce->setText(0, PercorsoAQt(nome));
    voce->setIcon(0, style()->standardIcon(icona));
    voce->setData(0, RuoloPercorso, Dato(percorso));
    return voce;
  };
  QTreeWidgetItem* voce = nullptr;
  Percorso fino;
  for (const Percorso& parte : cartella) {
    if (parte.empty()) continue;  // behind a last separator
    fino /= parte;
    voce = aggiungi(voce, parte, fino, QStyle::SP_DirOpenIcon);
  }
  for (const Percorso& nome : contenute)
    aggiungi(voce, nome, fino / nome, QStyle::SP_DirClosedIcon);
  expandAll();
  setCurrentItem(voce);
  scrollToItem(voce);
  return true;
}

void AlberoCartelle::ApriVoce(QTreeWidgetItem* voce) {
  const Percorso cartella = PercorsoDi(voce->data(0, RuoloPercorso));
  if (!Vai(cartella)) {
    Avvisa(ConCausa("Impossibile leggere la cartella.", cartella, ErroreDellaCartella(cartella)));
  } else if (cambia_) {
    cambia_();
  }
}

// Enter is the tree's own: the window's button is not meant.
void AlberoCartelle::keyPressEvent(QKeyEvent* evento) {
  const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
  if (!invio) return QTreeWidget::keyPressEvent(evento);
  if (currentItem()) ApriVoce(currentItem());
}

ListaUnita::ListaUnita(QWidget* genitore) : QComboBox(genitore) {
  const QString radiceDiTutto = QDir::rootPath();
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    const QString radice = volume.rootPath();
    if (!volume.isValid() || !volume.isReady() || DelSistema(radice)) continue;
    const QString nome = volume.name();
    addItem(nome.isEmpty() ? radice : QStringLiteral("%1  [%2]").arg(radice, nome),
            Dato(PercorsoDaQt(radice)));
  }
  // A confined program may not be told what the root folder lies on.
  if (findData(Dato(PercorsoDaQt(radiceDiTutto))) < 0)
    insertItem(0, radiceDiTutto, Dato(PercorsoDaQt(radiceDiTutto)));
}

void ListaUnita::Mostra(const Percorso& cartella) {
  int migliore = -1;
  std::ptrdiff_t parti = 0;
  for (int i = 0; i < count(); ++i) {
    const Percorso radice = PercorsoDi(itemData(i));
    const auto [fine, ignorato] =
        std::mismatch(radice.begin(), radice.end(), cartella.begin(), cartella.end());
    const std::ptrdiff_t comuni = std::distance(radice.begin(), radice.end());
    if (fine != radice.end() || comuni <= parti) continue;
    migliore = i;
    parti = comuni;
  }
  setCurrentIndex(migliore);
}

Percorso ListaUnita::Scelta() const {
  return PercorsoDi(currentData());
}

void CasellaDiNome::Mostra(const Percorso& nome) {
  mostrato_ = nome;
  setText(PercorsoAQt(nome));
}

Percorso CasellaDiNome::Nome() const {
  return Immutata() ? mostrato_ : PercorsoDaQt(text());
}

bool CasellaDiNome::Immutata() const {
  return text() == PercorsoAQt(mostrato_);
}

}  // namespace telarium
