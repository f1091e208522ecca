#pragma once

#include <QCursor>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>

#include "platform/user.h"

namespace telarium {

/// Puts a window before all others, also when it was an icon.
void PortaInPrimoPiano(QWidget& finestra);

/// The person at a desktop: message boxes, input boxes and pointer shapes of the window system.
class UtenteQt : public Utente {
 public:
  /// The main window, to which the boxes belong.
  void Finestra(QWidget* finestra) { finestra_ = finestra; }

  /// The pointer for a value of PuntatoreMouse that has no shape of the system.
  void Immagine(int forma, const QCursor& puntatore) { immagini_[forma] = puntatore; }

  /// What ContinuaEstrazione asks.
  void SegueEstrazione(std::function<bool(const AvanzamentoEstrazione&)> segue) {
    segue_ = std::move(segue);
  }

  Risposta MostraMessaggio(const Messaggio& messaggio) override;
  std::optional<std::string> ChiediTesto(const RichiestaDiTesto& richiesta) override;
  Risposta ChiediVicoloCieco(const std::string& testo) override;
  bool ContinuaEstrazione(const AvanzamentoEstrazione& avanzamento) override;
  void FormaPuntatore(int forma) override;
  void SegnaleAcustico() override;
  void CediAiMessaggi() override;

 private:
  class Scatola;

  QCursor PuntatorePer(int forma) const;
  void MostraForma();

  QPointer<QWidget> finestra_;
  std::map<int, QCursor> immagini_;
  std::function<bool(const AvanzamentoEstrazione&)> segue_;
  int forma_ = 0;
  int scatole_ = 0;        // boxes that are open
  bool cambiato_ = false;  // the pointer has a shape of ours
};

}  // namespace telarium
