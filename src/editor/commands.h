#pragma once

// The commands of the main window that belong to no subject of their own.
namespace telarium {

/// Menudef, and whatever leads back to editing: presses the Edit button and runs CambiaModoEdit.
void EntraInModifica();

/// The Edit button of the toolbar has been turned over, or was pressed: sets ModoGriglia to
/// whether it is pressed, and redraws.
void CambiaModoEdit();

/// Makes way for a print preview: forbids the commands that need the grid, shows Command3d15, sets
/// ModoGriglia to ModoAnteprima. What is drawn stays.
void IniziaAnteprima();

/// A click on Command3d15: leaves a print preview, allows all commands again, redraws and enters
/// editing.
void ChiudiAnteprima();

/// MenuAiuto, MenuInfo and MenuLudarium begin or end with it: leaves a print preview if one shows.
void LasciaAnteprima();

/// MenuL1 to MenuL4: opens the dictionary of a language, 1 Italian, 2 English, 3 Latin, 4 French.
/// Nothing happens when it is the current one.
void CambiaLingua(int lingua);

/// menudiz: shows Form4, which may leave another dictionary open.
void GestisciDizionari();

/// MenuVis and Menurett: turn their setting over and write the settings file.
void CommutaStampaSoluzioni();
void CommutaRettangoloParola();

/// MenuLudarium: starts the companion program.
void LanciaLudarium();

/// MenuAiuto: opens the guide, as a web archive or, where nothing shows those, as a web page.
void ApriAiuto();

/// Menusugg, and the first activation: shows frmTip, unless the user wants no tips any more.
void ApriSuggerimenti();

/// MenuInfo, and a click on StatusBar1: leaves a print preview and shows Form3.
void MostraInformazioni();

/// MenuFont: shows fONTEN.
void ScegliCarattere();

/// menusetschema: shows Settaggi, leaves a print preview and redraws.
void RegolaSchema();

/// The check marks of the menus, from the settings and the language as they are.
void AggiornaSpunte();

}  // namespace telarium
