#include "model/state.h"

#include "platform/platform.h"

namespace telarium {

Tabella<std::string, Indici<1, RigheSchema>> Schema("Schema");
std::int16_t NumColonne = 0;
std::int16_t NumRighe = 0;
Percorso NomeCruciverba;
Booleano16 SchemaModificato = Falso;
Tabella<std::string, AsseColonne, AsseRighe, AsseDirezioni> Definizione("Definizione");
Tabella<Colore, AsseColonne, AsseRighe> ColoreCasella("ColoreCasella");
Laboratorio LaboratorioDelCruciverba;
Tabella<char, AsseColonne, AsseRighe> LetteraCasella("LetteraCasella", CellaVuota);
Tabella<std::int16_t, AsseColonne, AsseRighe> TipoCasella("TipoCasella");
Tabella<std::int16_t, AsseColonne, AsseRighe> NumeroCasella("NumeroCasella");
Tabella<std::string, AsseColonne, AsseRighe, AsseDirezioni> ParolaCasella("ParolaCasella");
std::int16_t LatoCasella = 0;
std::int16_t OrigineX = 0;
std::int16_t OrigineY = 0;
std::int16_t ModoGriglia = 0;
std::int16_t PuntatoreMouse = 0;
Percorso CartellaProgramma;
Percorso CartellaIstantanea;

namespace {

constinit const AzzeramentoDiSottosistema* primoAzzeramento = nullptr;

}  // namespace

AzzeramentoDiSottosistema::AzzeramentoDiSottosistema(void (*azzera)())
    : azzera_(azzera), prossimo_(primoAzzeramento) {
  primoAzzeramento = this;
}

Percorso PercorsoIstantanea() {
  return (CartellaIstantanea.empty() ? CartellaProgramma : CartellaIstantanea) / NomeIstantanea;
}

void SvuotaDefinizioni() {
  Definizione.Riempi({});
}

void SvuotaCruciverba() {
  for (int i = RigheIntestazione + 1; i <= RigheSchema; ++i)
    Schema(i).clear();
  SvuotaDefinizioni();
  ColoreCasella.Riempi(ColoreNero);
  LaboratorioDelCruciverba = {};
  LetteraCasella.Riempi(CellaVuota);
  TipoCasella.Riempi(0);
  NumeroCasella.Riempi(0);
  ParolaCasella.Riempi({});
}

void AzzeraStato() {
  Schema.Riempi({});
  NumColonne = NumRighe = 0;
  NomeCruciverba.clear();
  SchemaModificato = Falso;
  SvuotaCruciverba();
  LatoCasella = OrigineX = OrigineY = 0;
  ModoGriglia = 0;
  PuntatoreMouse = 0;
  CartellaProgramma.clear();
  CartellaIstantanea.clear();
  for (auto* uno = primoAzzeramento; uno; uno = uno->prossimo_)
    uno->azzera_();
}

void ImpostaPuntatoreMouse(int forma) {
  PuntatoreMouse = static_cast<std::int16_t>(forma);
  ChiUsa().FormaPuntatore(forma);
}

}  // namespace telarium
