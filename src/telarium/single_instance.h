#pragma once

#include <QLocalServer>
#include <QString>
#include <functional>
#include <memory>

#include "platform/files.h"
#include "telarium/desktop_lock.h"

class QLocalSocket;

namespace telarium {

/// Sees to it that one desktop at a time works in a program folder: a lock file in that folder
/// (beside the socket when it takes none), and a local socket in a folder of the user's own, over
/// which a later start hands its crossword to the first one.
class UnicaIstanza {
 public:
  enum class Avvio {
    Prima,
    Seconda,   // another one is running
    Rinuncia,  // the lock is in doubt, and the user does not go on
  };

  explicit UnicaIstanza(const Percorso& cartella);
  ~UnicaIstanza();

  /// Takes the lock; asks the user where it is in doubt whether another one is running. The first
  /// one from now on calls `riceve` with the file of each later start, or with an empty path when
  /// that has none.
  Avvio Inizia(std::function<void(const Percorso&)> riceve);

  /// Hands a file to the first one. False when that does not answer within some seconds.
  bool Consegna(const Percorso& file) const;

  /// Tells that the first one does not answer, and which lock it holds.
  void AvvisaSenzaRisposta() const;

 private:
  Avvio PrendiBlocco();
  Avvio PrendiBloccoDiRiserva();
  void Ascolta();
  bool Raggiungi(QLocalSocket& prima) const;

  Percorso nome_;     // of the lock in the program folder
  Percorso riserva_;  // of the one that does for it; empty when there is no folder for it
  QString presa_;     // the socket's path; empty likewise
  BloccoDesktop blocco_;
  std::unique_ptr<QLocalServer> servente_;
  std::function<void(const Percorso&)> riceve_;
};

}  // namespace telarium
