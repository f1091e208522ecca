#pragma once

// The grid grows and shrinks by one column at its right or one row at its bottom, and is committed;
// SchemaModificato is set, ModoGriglia tells the command, the pointer is the arrow again. A size
// that does not allow it is told and changes nothing; without a grid nothing grows. Letters of what
// is taken away are gone; clues and colours stay with their cells.
namespace telarium {

/// New cells are empty white ones. At most 53 columns and 30 rows.
void AggiungiColonna();
void AggiungiRiga();

/// At least 3 columns and 3 rows stay.
void TogliColonna();
void TogliRiga();

}  // namespace telarium
