#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "platform/surface.h"

namespace telarium {

enum class Pulsanti { Ok, OkAnnulla, SiNo, SiNoAnnulla };
enum class Risposta { Ok, Annulla, Si, No };
enum class Icona { Nessuna, Informazione, Domanda, Avviso, Stop };

/// A message box. Without a title of its own it has the application's.
struct Messaggio {
  std::string testo;
  std::string titolo = {};
  Pulsanti pulsanti = Pulsanti::Ok;
  Icona icona = Icona::Nessuna;
};

/// A check box of an input box: how it stands, and behind an answer how the user left it.
struct Spunta {
  std::string testo;
  bool scelta = false;
};

/// An input box for one line of text. Without a title of its own it has the application's.
struct RichiestaDiTesto {
  std::string richiesta;
  std::string predefinito = {};
  std::string titolo = {};
  Spunta* spunta = nullptr;  // none
};

/// A wait that the user sees and can break off, as long as this object lives.
class Attesa {
 public:
  virtual ~Attesa() = default;

  /// Shows that it lasts, and how many bytes have come. False once the user wants no more of it.
  virtual bool Prosegue(std::size_t byte) = 0;

  /// The same for work of known length: shows the share that is done, from 0 to 1.
  virtual bool ProsegueFino(double parte) = 0;
};

// Shapes of the mouse pointer.
inline constexpr int PuntatoreFreccia = 0;
inline constexpr int PuntatoreFrecciaFissa = 1;   // after a masked search
inline constexpr int PuntatoreCasellaBianca = 2;  // a cross: the white-cell tool
inline constexpr int PuntatoreCasellaNera = 4;    // a picture: the black-cell tool
inline constexpr int PuntatoreVerticale = 7;      // over a vertical word
inline constexpr int PuntatoreOrizzontale = 9;    // over a horizontal word
inline constexpr int PuntatoreClessidra = 11;
inline constexpr int PuntatoreMano = 99;  // a picture: over the logo, or in a search of clues

/// The person at the machine, as the core speaks to them.
class Utente {
 public:
  virtual ~Utente() = default;

  /// Shows a message box and gives the button that closed it.
  virtual Risposta MostraMessaggio(const Messaggio& messaggio) = 0;

  /// Asks for a line of text in an input box. None when the user gave up; it may be empty.
  virtual std::optional<std::string> ChiediTesto(const RichiestaDiTesto& richiesta) = 0;

  /// Lets the user choose a colour in a small window at the pointer that begins with `iniziale`.
  /// NessunColore when none was chosen.
  virtual Colore ScegliColore(Colore iniziale) = 0;

  /// Puts a dead end of the fill before the user: Si accepts it, No starts anew, Annulla stops.
  virtual Risposta ChiediVicoloCieco(const std::string& testo) {
    return MostraMessaggio({.testo = testo, .pulsanti = Pulsanti::SiNoAnnulla});
  }

  /// Begins a wait, for which the text says the reason.
  virtual std::unique_ptr<Attesa> IniziaAttesa(const std::string& testo) = 0;

  /// Gives the mouse pointer one of the shapes above.
  virtual void FormaPuntatore(int forma) = 0;

  virtual void SegnaleAcustico() = 0;

  /// Lets the message loop run once.
  virtual void CediAiMessaggi() = 0;
};

}  // namespace telarium
