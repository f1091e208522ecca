#pragma once

#include <QCursor>
#include <QPointer>
#include <QWidget>
#include <map>

#include "platform/user.h"

namespace telarium {

/// Puts a window before all others, also when it was an icon.
void PortaInPrimoPiano(QWidget& finestra);

/// The person at a desktop: message boxes, input boxes and pointer shapes of the window system.
class UtenteQt : public Utente {
 public:
  /// The main window, which has the pointer shapes; boxes belong to it, or to the modal window that
  /// is open.
  void Finestra(QWidget* finestra) { finestra_ = finestra; }

  /// The pointer for a value of PuntatoreMouse that has no shape of the system.
  void Immagine(int forma, const QCursor& puntatore) { immagini_[forma] = puntatore; }

  Risposta MostraMessaggio(const Messaggio& messaggio) override;
  std::optional<std::string> ChiediTesto(const RichiestaDiTesto& richiesta) override;
  Colore ScegliColore(Colore iniziale) override;
  Risposta ChiediVicoloCieco(const std::string& testo) override;
  std::unique_ptr<Attesa> IniziaAttesa(const std::string& testo) override;
  void FormaPuntatore(int forma) override;
  void SegnaleAcustico() override;
  void CediAiMessaggi() override;

 private:
  QWidget* Genitore() const;
  QPoint AlPuntatore(QSize misura) const;
  QCursor PuntatorePer(int forma) const;

  QPointer<QWidget> finestra_;
  QPointer<QWidget> occupata_;  // the modal window that has the pointer's shape too
  std::map<int, QCursor> immagini_;
};

}  // namespace telarium
