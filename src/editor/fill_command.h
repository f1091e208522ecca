#pragma once

#include <functional>
#include <optional>

#include "fill/extraction.h"
#include "model/boolean.h"

namespace telarium {

/// Follows a fill, and tells whether it goes on.
using SegueEstrazione = std::function<bool(const AvanzamentoEstrazione&)>;

/// The automatic fill of the current crossword, before the eyes of the user.
class ComandoEstrazione {
 public:
  /// Without `segue` nothing but a dead end stops it.
  explicit ComandoEstrazione(SegueEstrazione segue = {}) : segue_(std::move(segue)) {}

  /// The check mark of MenuInf: at a dead end the fill starts again by itself.
  Booleano16 ProvaInfinita = Falso;

  /// Whom the fill tells how far it has come, from now on.
  void Segue(SegueEstrazione segue) { segue_ = std::move(segue); }

  /// Asks first, then fills as EseguiEstrazione does. None when there is no crossword or the user
  /// refused; nothing has changed then.
  std::optional<EsitoEstrazione> EstraiSchema();

  /// Fills the current crossword with words of the open dictionary (see Estrazione), paints them as
  /// they are placed and puts dead ends to the user. Its first clearing and its end write the
  /// snapshot; the one that cannot be written at the clearing ends it. Leaves ModoGriglia 0 and
  /// SchemaModificato set. What would end the run at its first step leaves all as it is.
  EsitoEstrazione EseguiEstrazione();

 private:
  SegueEstrazione segue_;
};

}  // namespace telarium
