<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>KORVA_Canvas</name>
    <message>
        <source>Cut</source>
        <comment>2.11.1;MENU</comment>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <comment>2.11.1;MENU</comment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>2.11.1;MENU</comment>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>menu of the canvas</comment>
        <translation>Zeichnung</translation>
    </message>
</context>
<context>
    <name>KORVA_ChooseCanvasDlg</name>
    <message>
        <source>32 X 40(stamp)</source>
        <comment>2.11.3;MENU</comment>
        <translation>32 X 40 (Stempel)</translation>
    </message>
    <message>
        <source>200 X 170(normal)</source>
        <comment>2.11.3;MENU</comment>
        <translation>200 X 170 (normal)</translation>
    </message>
    <message>
        <source>Canvas Size:</source>
        <comment>2.11.3;DIALOG_CONTEXT</comment>
        <translation>Leinwandgröße:</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.3;SOFTKEY_2BUTTON</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.3;SOFTKEY_2BUTTON</comment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>KORVA_ColorPicker</name>
    <message>
        <source>Red</source>
        <comment>colour channel</comment>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <comment>colour channel</comment>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <comment>colour channel</comment>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Color</source>
        <comment>2.11.6;DIALOG_TITLE</comment>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.6;SOFTKEY_2BUTTON</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.6;SOFTKEY_2BUTTON</comment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>KORVA_EditCanvas</name>
    <message>
        <source>Save changes to drawing before opening?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>Änderungen an der Zeichnung vor dem Öffnen speichern?</translation>
    </message>
    <message>
        <source>Save changes to drawing before choosing canvas?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>Änderungen an der Zeichnung vor der Wahl der Leinwand speichern?</translation>
    </message>
    <message>
        <source>Save changes to drawing before creating?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>Änderungen an der Zeichnung vor dem Anlegen einer neuen speichern?</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>2.11.2.3;SOFTKEY_2BUTTON</comment>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <comment>2.11.2.3;SOFTKEY_2BUTTON</comment>
        <translation>Nein</translation>
    </message>
    <message>
        <source>The image is oversize</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Das Bild ist zu groß</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Die Datei konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>This file can not be opened.</source>
        <comment>4.4.4.2;DIALOG_ICON_50_WARP</comment>
        <translation>Diese Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>4.4.4.2;SOFTKEY_1BUTTON</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>open buffer fail!</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Das übergebene Bild konnte nicht geöffnet werden!</translation>
    </message>
    <message>
        <source>Insert stamp</source>
        <comment>PICK_DIALOG;TITLE</comment>
        <translation>Stempel einfügen</translation>
    </message>
    <message>
        <source>Insert</source>
        <comment>PICK_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Saved Successfully</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Erfolgreich gespeichert</translation>
    </message>
    <message>
        <source>Saved Failed</source>
        <comment>2.11.2.10;DIALOG_ICON_50</comment>
        <translation>Speichern fehlgeschlagen</translation>
    </message>
    <message>
        <source>Delete drawing?</source>
        <comment>2.11.2.1;DIALOG_ICON_50</comment>
        <translation>Zeichnung löschen?</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.2.1;SOFTKEY_2BUTTON</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.2.1;SOFTKEY_2BUTTON</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Fit to page</source>
        <comment>2.11.1;MENU</comment>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Tool</source>
        <comment>tool bar</comment>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>Tool option</source>
        <comment>tool bar</comment>
        <translation>Werkzeugoption</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>tool bar</comment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Color</source>
        <comment>tool bar</comment>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Select</source>
        <comment>tool</comment>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Eraser</source>
        <comment>tool</comment>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>Line</source>
        <comment>tool</comment>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Pencil</source>
        <comment>tool</comment>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Text</source>
        <comment>tool</comment>
        <translation>Text</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <comment>tool</comment>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Hand</source>
        <comment>tool</comment>
        <translation>Hand</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <comment>tool</comment>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Small</source>
        <comment>tool option</comment>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Medium</source>
        <comment>tool option</comment>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Large</source>
        <comment>tool option</comment>
        <translation>Groß</translation>
    </message>
    <message>
        <source>Select area</source>
        <comment>tool option</comment>
        <translation>Bereich auswählen</translation>
    </message>
    <message>
        <source>Move view</source>
        <comment>tool option</comment>
        <translation>Ansicht verschieben</translation>
    </message>
    <message>
        <source>7 point</source>
        <comment>tool option</comment>
        <translation>7 Punkt</translation>
    </message>
    <message>
        <source>9 point</source>
        <comment>tool option</comment>
        <translation>9 Punkt</translation>
    </message>
    <message>
        <source>11 point</source>
        <comment>tool option</comment>
        <translation>11 Punkt</translation>
    </message>
    <message>
        <source>Outline</source>
        <comment>tool option</comment>
        <translation>Umriss</translation>
    </message>
    <message>
        <source>Filled</source>
        <comment>tool option</comment>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Opening picture</source>
        <comment>WAIT_BOX</comment>
        <translation>Bild wird geöffnet</translation>
    </message>
    <message>
        <source>Drawing editor</source>
        <comment>screen reader</comment>
        <translation>Zeicheneditor</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>screen reader</comment>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>Floating piece</source>
        <comment>screen reader</comment>
        <translation>Schwebendes Stück</translation>
    </message>
    <message>
        <source>Zoom %1 %</source>
        <comment>screen reader</comment>
        <translation>Zoom %1 %</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <comment>screen reader</comment>
        <translation>%1 mal %2 Pixel</translation>
    </message>
    <message>
        <source>Pen down at %1, %2</source>
        <comment>screen reader</comment>
        <translation>Stift aufgesetzt bei %1, %2</translation>
    </message>
    <message>
        <source>Pen at %1, %2</source>
        <comment>screen reader</comment>
        <translation>Stift bei %1, %2</translation>
    </message>
    <message>
        <source>A text is open</source>
        <comment>screen reader</comment>
        <translation>Ein Text ist offen</translation>
    </message>
    <message>
        <source>A piece of %1 by %2 pixels floats at %3, %4</source>
        <comment>screen reader</comment>
        <translation>Ein Stück von %1 mal %2 Pixeln schwebt bei %3, %4</translation>
    </message>
    <message>
        <source>red</source>
        <comment>color</comment>
        <translation>Rot</translation>
    </message>
    <message>
        <source>orange</source>
        <comment>color</comment>
        <translation>Orange</translation>
    </message>
    <message>
        <source>yellow</source>
        <comment>color</comment>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>green</source>
        <comment>color</comment>
        <translation>Grün</translation>
    </message>
    <message>
        <source>turquoise</source>
        <comment>color</comment>
        <translation>Türkis</translation>
    </message>
    <message>
        <source>blue</source>
        <comment>color</comment>
        <translation>Blau</translation>
    </message>
    <message>
        <source>violet</source>
        <comment>color</comment>
        <translation>Violett</translation>
    </message>
    <message>
        <source>pink</source>
        <comment>color</comment>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>black</source>
        <comment>color</comment>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>gray</source>
        <comment>color</comment>
        <translation>Grau</translation>
    </message>
    <message>
        <source>white</source>
        <comment>color</comment>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>brown</source>
        <comment>color</comment>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Bold</source>
        <comment>tool option</comment>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Thin edge</source>
        <comment>tool option; around what is filled</comment>
        <translation>Dünner Rand</translation>
    </message>
    <message>
        <source>Thick edge</source>
        <comment>tool option; around what is filled</comment>
        <translation>Dicker Rand</translation>
    </message>
</context>
<context>
    <name>KORVA_ImageView_Dialog</name>
    <message>
        <source>Cancel</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Confirm</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>The image is oversize</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Das Bild ist zu groß</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Die Datei konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Picture load error.</source>
        <comment>2.16.5.9.4;FORM_CONTEXT_WITH_SCROLL_ICON1_20_WARP2</comment>
        <translation>Das Bild konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.16.5.9.4;CST_5BUTTON</comment>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>KORVA_PasteLabel</name>
    <message>
        <source>Copy</source>
        <comment>2.11.1;MENU</comment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Cut</source>
        <comment>2.11.1;MENU</comment>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>2.11.1;MENU</comment>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Floating piece</source>
        <comment>menu of the piece</comment>
        <translation>Schwebendes Stück</translation>
    </message>
    <message>
        <source>Turn left</source>
        <comment>menu of the piece</comment>
        <translation>Links drehen</translation>
    </message>
    <message>
        <source>Turn right</source>
        <comment>menu of the piece</comment>
        <translation>Rechts drehen</translation>
    </message>
    <message>
        <source>Flip</source>
        <comment>menu of the piece: left and right change places</comment>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>Double</source>
        <comment>menu of the piece: twice as wide and high</comment>
        <translation>Verdoppeln</translation>
    </message>
    <message>
        <source>Halve</source>
        <comment>menu of the piece: half as wide and high</comment>
        <translation>Halbieren</translation>
    </message>
    <message>
        <source>White is clear</source>
        <comment>menu of the piece: a switch</comment>
        <translation>Weiß ist klar</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>menu of the piece</comment>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>KORVA_Preview_Dialog</name>
    <message>
        <source>Cancel</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Confirm</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>Bestätigen</translation>
    </message>
</context>
<context>
    <name>UTIL_FolderDialog</name>
    <message>
        <source>Up</source>
        <comment>FOLDER_DIALOG;BUTTON</comment>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Order</source>
        <comment>FOLDER_DIALOG;BUTTON</comment>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>By name</source>
        <comment>FOLDER_DIALOG;LIST</comment>
        <translation>Nach Name</translation>
    </message>
    <message>
        <source>Newest first</source>
        <comment>FOLDER_DIALOG;LIST</comment>
        <translation>Neueste zuerst</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>FOLDER_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>UTIL_MessageBox</name>
    <message>
        <source>Cancel</source>
        <comment>message box</comment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>UTIL_PickDialog</name>
    <message>
        <source>Open picture</source>
        <comment>PICK_DIALOG;TITLE</comment>
        <translation>Bild öffnen</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>PICK_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Öffnen</translation>
    </message>
</context>
<context>
    <name>UTIL_PictureView</name>
    <message>
        <source>No pictures here</source>
        <comment>FOLDER_DIALOG;CONTEXT</comment>
        <translation>Hier sind keine Bilder</translation>
    </message>
    <message>
        <source>This folder cannot be read</source>
        <comment>FOLDER_DIALOG;CONTEXT</comment>
        <translation>Dieser Ordner ist nicht lesbar</translation>
    </message>
</context>
<context>
    <name>UTIL_SaveDialog</name>
    <message>
        <source>Save picture as</source>
        <comment>SAVE_DIALOG;TITLE</comment>
        <translation>Bild speichern als</translation>
    </message>
    <message>
        <source>Save</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>File name</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Replace</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <comment>SAVE_DIALOG;DIALOG_ICON_50_WARP</comment>
        <translation>%1 ersetzen?</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>Drawing %1</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>Zeichnung %1</translation>
    </message>
</context>
<context>
    <name>UTIL_ScrollBar</name>
    <message>
        <source>Scroll sideways</source>
        <comment>screen reader</comment>
        <translation>Seitwärts rollen</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <comment>screen reader</comment>
        <translation>Auf und ab rollen</translation>
    </message>
</context>
<context>
    <name>UTIL_Veil</name>
    <message>
        <source>Dimmed for a dialog</source>
        <comment>screen reader</comment>
        <translation>Abgedunkelt für einen Dialog</translation>
    </message>
</context>
<context>
    <name>UTIL_WaitBox</name>
    <message>
        <source>Cancel</source>
        <comment>WAIT_BOX;SOFTKEY_1BUTTON</comment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>desktop</name>
    <message>
        <source>Korva Pad</source>
        <comment>Name</comment>
        <translation>Korva-Zeichenblock</translation>
    </message>
    <message>
        <source>Drawing Pad</source>
        <comment>GenericName</comment>
        <translation>Zeichenblock</translation>
    </message>
    <message>
        <source>Draw and edit small pictures</source>
        <comment>Comment</comment>
        <translation>Kleine Bilder zeichnen und bearbeiten</translation>
    </message>
    <message>
        <source>draw;paint;picture;bitmap;sketch;</source>
        <comment>Keywords; each ends with a semicolon</comment>
        <translation>zeichnen;malen;Bild;Skizze;</translation>
    </message>
    <message>
        <source>A drawing pad for small touch screens, which works as well with a mouse: pencil, line, rectangle, ellipse, eraser, text and a selection that can be moved, stretched and turned.</source>
        <comment>description</comment>
        <translation>Ein Zeichenblock für kleine Touchscreens, der sich ebenso gut mit der Maus bedienen lässt: Stift, Linie, Rechteck, Ellipse, Radierer, Text und eine Auswahl, die verschoben, gedehnt und gedreht werden kann.</translation>
    </message>
    <message>
        <source>It reads PNG, GIF, JPEG, BMP and WBMP pictures and writes PNG, JPEG and BMP.</source>
        <comment>description</comment>
        <translation>Er liest Bilder in den Formaten PNG, GIF, JPEG, BMP und WBMP und schreibt PNG, JPEG und BMP.</translation>
    </message>
</context>
<context>
    <name>pad::ColorPopup</name>
    <message>
        <source>Colors</source>
        <comment>color pop-up</comment>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Value of the color</source>
        <comment>color pop-up</comment>
        <translation>Wert der Farbe</translation>
    </message>
    <message>
        <source>#rrggbb, or red, green and blue from 0 to 255</source>
        <comment>color pop-up</comment>
        <translation>#rrggbb oder Rot, Grün und Blau von 0 bis 255</translation>
    </message>
    <message>
        <source>More ...</source>
        <comment>color pop-up; opens a dialog</comment>
        <translation>Mehr ...</translation>
    </message>
</context>
<context>
    <name>pad::ColorsDialog</name>
    <message>
        <source>Plain</source>
        <comment>few colors</comment>
        <translation>Flächig</translation>
    </message>
    <message>
        <source>Dotted</source>
        <comment>few colors</comment>
        <translation>Gepunktet</translation>
    </message>
</context>
<context>
    <name>pad::CommandLine</name>
    <message>
        <source>--scale takes a number from 1 to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>--scale verlangt eine Zahl von 1 bis %1, nicht »%2«</translation>
    </message>
    <message>
        <source>show every pixel N x N (default: as last time, or what suits the screen)</source>
        <comment>help</comment>
        <translation>jedes Pixel N x N zeigen (sonst: wie zuletzt, oder passend zum Bildschirm)</translation>
    </message>
    <message>
        <source>speak this language, like de or pt_BR</source>
        <comment>help</comment>
        <translation>diese Sprache sprechen, etwa de oder pt_BR</translation>
    </message>
    <message>
        <source>play a recording; no pointer is needed</source>
        <comment>help</comment>
        <translation>eine Aufnahme abspielen; ohne Maus oder Stift</translation>
    </message>
    <message>
        <source>write a recording of what is drawn</source>
        <comment>help</comment>
        <translation>aufnehmen, was gezeichnet wird</translation>
    </message>
    <message>
        <source>save the drawing after the replay, then exit</source>
        <comment>help</comment>
        <translation>die Zeichnung nach dem Abspielen speichern und enden</translation>
    </message>
    <message>
        <source>write the window as PNG, then exit</source>
        <comment>help</comment>
        <translation>das Fenster als PNG schreiben und enden</translation>
    </message>
    <message>
        <source>keep no copy of what is not saved, and offer none</source>
        <comment>help</comment>
        <translation>keine Kopie des Ungespeicherten aufheben oder anbieten</translation>
    </message>
    <message>
        <source>show this text</source>
        <comment>help</comment>
        <translation>diesen Text zeigen</translation>
    </message>
    <message>
        <source>show the version</source>
        <comment>help</comment>
        <translation>die Version zeigen</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <comment>command line</comment>
        <translation>%1 steht zweimal da</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <comment>command line</comment>
        <translation>%1 nimmt keinen Wert</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; (--help lists them)</source>
        <comment>command line</comment>
        <translation>unbekannte Option »%1« (--help nennt alle)</translation>
    </message>
    <message>
        <source>%1 needs a value: %1 %2</source>
        <comment>command line</comment>
        <translation>%1 braucht einen Wert: %1 %2</translation>
    </message>
    <message>
        <source>one picture at a time: &apos;%1&apos; and &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>nur ein Bild auf einmal: »%1« und »%2«</translation>
    </message>
    <message>
        <source>the picture&apos;s name is empty</source>
        <comment>command line</comment>
        <translation>der Name des Bildes ist leer</translation>
    </message>
    <message>
        <source>Usage: korva-pad [options] [picture]</source>
        <comment>help</comment>
        <translation>Aufruf: korva-pad [Optionen] [Bild]</translation>
    </message>
    <message>
        <source>A drawing pad: draws on a new canvas or on the picture given.</source>
        <comment>help</comment>
        <translation>Ein Zeichenblock: zeichnet auf einer neuen Leinwand oder auf dem genannten Bild.</translation>
    </message>
    <message>
        <source>Options:</source>
        <comment>help</comment>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>--scale %1 does not fit a screen of %2 x %3; taking %4</source>
        <comment>command line</comment>
        <translation>--scale %1 passt nicht auf einen Bildschirm von %2 x %3, daher %4</translation>
    </message>
    <message>
        <source>there is no language &apos;%1&apos;; taking English (known: %2)</source>
        <comment>command line</comment>
        <translation>die Sprache »%1« gibt es nicht, daher Englisch (bekannt: %2)</translation>
    </message>
    <message>
        <source>--undo-steps takes a number from 1 to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>--undo-steps verlangt eine Zahl von 1 bis %1, nicht »%2«</translation>
    </message>
    <message>
        <source>--working-size takes WxH, up to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>--working-size verlangt BxH, höchstens %1, nicht »%2«</translation>
    </message>
    <message>
        <source>--working-depth takes 16 or 24, not &apos;%1&apos;</source>
        <comment>command line</comment>
        <translation>--working-depth verlangt 16 oder 24, nicht »%1«</translation>
    </message>
    <message>
        <source>how many steps can be undone (default: 50)</source>
        <comment>help</comment>
        <translation>wie viele Schritte rückgängig zu machen sind (sonst: 50)</translation>
    </message>
    <message>
        <source>fit opened pictures into this size (default: 352x288)</source>
        <comment>help</comment>
        <translation>geöffnete Bilder in diese Größe einpassen (sonst: 352x288)</translation>
    </message>
    <message>
        <source>the colour depth of opened pictures (default: 16)</source>
        <comment>help</comment>
        <translation>die Farbtiefe geöffneter Bilder (sonst: 16)</translation>
    </message>
</context>
<context>
    <name>pad::Commands</name>
    <message>
        <source>&amp;New ...</source>
        <comment>menu</comment>
        <translation>&amp;Neu ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <comment>menu</comment>
        <translation>Ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <comment>menu</comment>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;as ...</source>
        <comment>menu</comment>
        <translation>Speichern &amp;als ...</translation>
    </message>
    <message>
        <source>&amp;Keys ...</source>
        <comment>menu</comment>
        <translation>&amp;Tasten ...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <comment>menu</comment>
        <translation>&amp;Ende</translation>
    </message>
    <message>
        <source>&amp;Picture</source>
        <comment>menu</comment>
        <translation>&amp;Bild</translation>
    </message>
    <message>
        <source>&amp;Insert stamp ...</source>
        <comment>menu</comment>
        <translation>&amp;Stempel einfügen ...</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <comment>menu</comment>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>&amp;Earlier drawings ...</source>
        <comment>menu</comment>
        <translation>&amp;Frühere Zeichnungen ...</translation>
    </message>
    <message>
        <source>&amp;Delete picture ...</source>
        <comment>menu</comment>
        <translation>&amp;Bild löschen ...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <comment>menu</comment>
        <translation>Bea&amp;rbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <comment>menu</comment>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <comment>menu</comment>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <comment>menu</comment>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <comment>menu</comment>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <comment>menu</comment>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <comment>menu</comment>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <comment>menu</comment>
        <translation>Alles a&amp;uswählen</translation>
    </message>
    <message>
        <source>Cop&amp;y drawing</source>
        <comment>menu</comment>
        <translation>&amp;Bild kopieren</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <comment>menu</comment>
        <translation>&amp;Werkzeug</translation>
    </message>
    <message>
        <source>Pe&amp;ncil</source>
        <comment>menu</comment>
        <translation>S&amp;tift</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <comment>menu</comment>
        <translation>&amp;Linie</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <comment>menu</comment>
        <translation>&amp;Rechteck</translation>
    </message>
    <message>
        <source>&amp;Ellipse</source>
        <comment>menu</comment>
        <translation>&amp;Ellipse</translation>
    </message>
    <message>
        <source>Er&amp;aser</source>
        <comment>menu</comment>
        <translation>Ra&amp;dierer</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <comment>menu</comment>
        <translation>Te&amp;xt</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <comment>menu</comment>
        <translation>&amp;Auswählen</translation>
    </message>
    <message>
        <source>&amp;Hand</source>
        <comment>menu</comment>
        <translation>&amp;Hand</translation>
    </message>
    <message>
        <source>&amp;Color ...</source>
        <comment>menu</comment>
        <translation>&amp;Farbe ...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <comment>menu</comment>
        <translation>Ans&amp;icht</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <comment>menu</comment>
        <translation>&amp;Größer</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <comment>menu</comment>
        <translation>&amp;Kleiner</translation>
    </message>
    <message>
        <source>&amp;Real size</source>
        <comment>menu</comment>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>&amp;Fit to page</source>
        <comment>menu</comment>
        <translation>&amp;Einpassen</translation>
    </message>
    <message>
        <source>Full s&amp;creen</source>
        <comment>menu</comment>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>F&amp;inger pans</source>
        <comment>menu</comment>
        <translation>&amp;Finger verschiebt</translation>
    </message>
    <message>
        <source>First option</source>
        <comment>menu</comment>
        <translation>Erste Option</translation>
    </message>
    <message>
        <source>Second option</source>
        <comment>menu</comment>
        <translation>Zweite Option</translation>
    </message>
    <message>
        <source>Third option</source>
        <comment>menu</comment>
        <translation>Dritte Option</translation>
    </message>
    <message>
        <source>Menu</source>
        <comment>keys</comment>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Arrows</source>
        <comment>keys</comment>
        <translation>Pfeile</translation>
    </message>
    <message>
        <source>Move pen, piece</source>
        <comment>keys</comment>
        <translation>Stift, Teil bewegen</translation>
    </message>
    <message>
        <source>Shift+arrows</source>
        <comment>keys</comment>
        <translation>Umschalt+Pfeile</translation>
    </message>
    <message>
        <source>... by 10 pixels</source>
        <comment>keys</comment>
        <translation>... 10 Pixel</translation>
    </message>
    <message>
        <source>Draw while held</source>
        <comment>keys</comment>
        <translation>Gehalten zeichnen</translation>
    </message>
    <message>
        <source>Pen down, up</source>
        <comment>keys</comment>
        <translation>Stift auf, ab</translation>
    </message>
    <message>
        <source>Put piece down</source>
        <comment>keys</comment>
        <translation>Teil ablegen</translation>
    </message>
    <message>
        <source>Alt+arrows</source>
        <comment>keys</comment>
        <translation>Alt+Pfeile</translation>
    </message>
    <message>
        <source>Stretch piece</source>
        <comment>keys</comment>
        <translation>Teil dehnen</translation>
    </message>
    <message>
        <source>Turn piece</source>
        <comment>keys</comment>
        <translation>Teil drehen</translation>
    </message>
    <message>
        <source>Drop piece</source>
        <comment>keys</comment>
        <translation>Teil verwerfen</translation>
    </message>
    <message>
        <source>End text</source>
        <comment>keys</comment>
        <translation>Text beenden</translation>
    </message>
    <message>
        <source>&amp;Fill</source>
        <comment>menu</comment>
        <translation>Fülle&amp;n</translation>
    </message>
    <message>
        <source>Pic&amp;k color</source>
        <comment>menu</comment>
        <translation>&amp;Pipette</translation>
    </message>
    <message>
        <source>&amp;New from picture ...</source>
        <comment>menu</comment>
        <translation>&amp;Neu aus Bild ...</translation>
    </message>
    <message>
        <source>Save for a &amp;message ...</source>
        <comment>menu</comment>
        <translation>&amp;Kopie für Nachricht ...</translation>
    </message>
    <message>
        <source>Save in &amp;few colors ...</source>
        <comment>menu</comment>
        <translation>Mit &amp;wenig Farben ...</translation>
    </message>
    <message>
        <source>&amp;Print ...</source>
        <comment>menu</comment>
        <translation>&amp;Drucken ...</translation>
    </message>
</context>
<context>
    <name>pad::Copies</name>
    <message>
        <source>The printer does not take it.</source>
        <comment>print</comment>
        <translation>Der Drucker nimmt es nicht an.</translation>
    </message>
</context>
<context>
    <name>pad::CopyDialog</name>
    <message>
        <source>Save</source>
        <comment>copy</comment>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>copy</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>One moment ...</source>
        <comment>copy</comment>
        <translation>Einen Moment ...</translation>
    </message>
    <message>
        <source>The picture does not fit.</source>
        <comment>copy</comment>
        <translation>Das Bild passt nicht hinein.</translation>
    </message>
</context>
<context>
    <name>pad::Display</name>
    <message>
        <source>there is no display</source>
        <comment>display</comment>
        <translation>es gibt keine Anzeige</translation>
    </message>
    <message>
        <source>cannot open display %1</source>
        <comment>display</comment>
        <translation>die Anzeige %1 lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>there is no screen</source>
        <comment>display</comment>
        <translation>es gibt keinen Bildschirm</translation>
    </message>
    <message>
        <source>cannot show anything on &apos;%1&apos;: %2</source>
        <comment>display</comment>
        <translation>auf »%1« lässt sich nichts zeigen: %2</translation>
    </message>
    <message>
        <source>%1: the toolkit&apos;s plugin for Wayland (%2) is not installed</source>
        <comment>display; %1: its name, %2: a package</comment>
        <translation>%1: das Wayland-Plugin des Toolkits (%2) ist nicht installiert</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <comment>display; names of displays</comment>
        <translation>%1 oder %2</translation>
    </message>
</context>
<context>
    <name>pad::Documents</name>
    <message>
        <source>No copy of the drawing can be kept. Give it up?</source>
        <comment>changes</comment>
        <translation>Von der Zeichnung lässt sich keine Kopie aufheben. Aufgeben?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>changes</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Give it up</source>
        <comment>changes</comment>
        <translation>Aufgeben</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>changes</comment>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <comment>changes</comment>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Save changes to drawing before closing?</source>
        <comment>changes</comment>
        <translation>Änderungen an der Zeichnung vor dem Schließen speichern?</translation>
    </message>
    <message>
        <source>Black and white</source>
        <comment>canvas type</comment>
        <translation>Schwarz und weiß</translation>
    </message>
    <message numerus="yes">
        <source>%Ln colors</source>
        <comment>canvas type</comment>
        <translation>
            <numerusform>%Ln Farbe</numerusform>
            <numerusform>%Ln Farben</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>canvas type</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>How many colors?</source>
        <comment>canvas type</comment>
        <translation>Wie viele Farben?</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>saving</comment>
        <translation>Nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>saving</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save changes to drawing before creating?</source>
        <comment>changes</comment>
        <translation>Änderungen an der Zeichnung vor dem Anlegen einer neuen speichern?</translation>
    </message>
    <message>
        <source>Save changes to drawing before opening?</source>
        <comment>changes</comment>
        <translation>Änderungen an der Zeichnung vor dem Öffnen speichern?</translation>
    </message>
    <message>
        <source>%1 was changed since it was opened: replacing it would lose that.</source>
        <comment>saving</comment>
        <translation>%1 wurde seit dem Öffnen geändert: Beim Ersetzen ginge das verloren.</translation>
    </message>
    <message>
        <source>Save as new</source>
        <comment>saving</comment>
        <translation>Neu speichern</translation>
    </message>
    <message>
        <source>Replace</source>
        <comment>saving</comment>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>saving</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>deleting</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Move %1 to the trash?</source>
        <comment>deleting</comment>
        <translation>%1 in den Papierkorb werfen?</translation>
    </message>
    <message>
        <source>To the trash</source>
        <comment>deleting</comment>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>There is no trash for %1. Delete it for good?</source>
        <comment>deleting</comment>
        <translation>Für %1 gibt es keinen Papierkorb. Endgültig löschen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>deleting</comment>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Not deleted: %1</source>
        <comment>deleting</comment>
        <translation>Nicht gelöscht: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>deleting</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1 pictures can only be opened: the drawing of %2 pixels needs a new file.</source>
        <comment>saving; %1: &apos;GIF&apos;, %2: &apos;300 × 200&apos;</comment>
        <translation>%1-Bilder können nur geöffnet werden: Die Zeichnung von %2 Pixeln braucht eine neue Datei.</translation>
    </message>
    <message>
        <source>%1 has %2 pixels and the drawing %3: replacing it would lose the rest.</source>
        <comment>saving; %1: a file, %2 and %3: &apos;300 × 200&apos;</comment>
        <translation>%1 hat %2 Pixel und die Zeichnung %3: Beim Ersetzen ginge der Rest verloren.</translation>
    </message>
    <message>
        <source>%1 has more colors than the drawing of %2 pixels: replacing it would lose them.</source>
        <comment>saving; %1: a file, %2: &apos;300 × 200&apos;</comment>
        <translation>%1 hat mehr Farben als die Zeichnung von %2 Pixeln: Beim Ersetzen gingen sie verloren.</translation>
    </message>
    <message>
        <source>New from picture</source>
        <comment>pick dialog</comment>
        <translation>Neu aus Bild</translation>
    </message>
    <message>
        <source>%1 was saved: %2</source>
        <comment>saving; %1: a file, %2: &apos;29.6 kB&apos;</comment>
        <translation>%1 gespeichert: %2</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <comment>size of a file</comment>
        <translation>%1 kB</translation>
    </message>
</context>
<context>
    <name>pad::DrawingFile</name>
    <message>
        <source>The disk is full.</source>
        <comment>saving</comment>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>No permission to write in %1.</source>
        <comment>saving</comment>
        <translation>Keine Berechtigung, in %1 zu schreiben.</translation>
    </message>
    <message>
        <source>%1 is on a disk that can only be read.</source>
        <comment>saving</comment>
        <translation>%1 liegt auf einem Datenträger, der nur gelesen werden kann.</translation>
    </message>
    <message>
        <source>The disk reports an error.</source>
        <comment>saving</comment>
        <translation>Der Datenträger meldet einen Fehler.</translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <comment>saving</comment>
        <translation>Den Ordner %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>There is a folder of this name.</source>
        <comment>saving</comment>
        <translation>Es gibt einen Ordner dieses Namens.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <comment>saving</comment>
        <translation>Der Name ist zu lang.</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2</source>
        <comment>command line</comment>
        <translation>»%1« lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>cannot open &apos;%1&apos;: %2</source>
        <comment>command line</comment>
        <translation>»%1« lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>GIF pictures are only read</source>
        <comment>command line</comment>
        <translation>GIF-Bilder werden nur gelesen</translation>
    </message>
    <message>
        <source>Saving drawing</source>
        <comment>saving</comment>
        <translation>Zeichnung wird gespeichert</translation>
    </message>
</context>
<context>
    <name>pad::EarlierDialog</name>
    <message>
        <source>Earlier drawings</source>
        <comment>earlier drawings</comment>
        <translation>Frühere Zeichnungen</translation>
    </message>
    <message>
        <source>None was kept so far.</source>
        <comment>earlier drawings</comment>
        <translation>Bisher wurde keine aufgehoben.</translation>
    </message>
    <message>
        <source>Bring it back</source>
        <comment>earlier drawings</comment>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>earlier drawings</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>today at %1</source>
        <comment>time, in a list and in a sentence; %1: &apos;9:30&apos;</comment>
        <translation>heute um %1</translation>
    </message>
    <message>
        <source>yesterday at %1</source>
        <comment>time, in a list and in a sentence; %1: &apos;9:30&apos;</comment>
        <translation>gestern um %1</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>time, in a list and in a sentence; %1: a date, %2: &apos;9:30&apos;</comment>
        <translation>%1 um %2</translation>
    </message>
</context>
<context>
    <name>pad::KeysDialog</name>
    <message>
        <source>Keys</source>
        <comment>keys</comment>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>keys</comment>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Buttons</source>
        <comment>keys; title, of the tool bar&apos;s buttons</comment>
        <translation>Knöpfe</translation>
    </message>
</context>
<context>
    <name>pad::PadTools</name>
    <message>
        <source>Fill</source>
        <comment>tool</comment>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Pick color</source>
        <comment>tool</comment>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>%1 points</source>
        <comment>tool option</comment>
        <translation>%1 Punkt</translation>
    </message>
    <message>
        <source>%1 px</source>
        <comment>tool option: pixels</comment>
        <translation>%1 px</translation>
    </message>
</context>
<context>
    <name>pad::PadWindow</name>
    <message>
        <source>Menu</source>
        <comment>soft key</comment>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Drawing[*] - Korva</source>
        <comment>window title</comment>
        <translation>Zeichnung[*] - Korva</translation>
    </message>
    <message>
        <source>%1[*] - Korva</source>
        <comment>window title</comment>
        <translation>%1[*] - Korva</translation>
    </message>
</context>
<context>
    <name>pad::Platform</name>
    <message>
        <source>the question &apos;%1&apos; has no answer</source>
        <comment>replay</comment>
        <translation>die Frage »%1« hat keine Antwort</translation>
    </message>
    <message>
        <source>no picture is named to open</source>
        <comment>replay</comment>
        <translation>kein Bild zum Öffnen ist genannt</translation>
    </message>
    <message>
        <source>the drawing has no name to be saved under</source>
        <comment>replay</comment>
        <translation>die Zeichnung hat keinen Namen zum Speichern</translation>
    </message>
</context>
<context>
    <name>pad::Player</name>
    <message>
        <source>the tool has no option %1</source>
        <comment>replay</comment>
        <translation>das Werkzeug hat keine Option %1</translation>
    </message>
    <message>
        <source>the drawing could not be saved</source>
        <comment>replay</comment>
        <translation>die Zeichnung konnte nicht gespeichert werden</translation>
    </message>
</context>
<context>
    <name>pad::Preview</name>
    <message>
        <source>Usage: korva-preview [options] PICTURE</source>
        <comment>help</comment>
        <translation>Aufruf: korva-preview [Optionen] PICTURE</translation>
    </message>
    <message>
        <source>Shows a picture to be confirmed or cancelled: prints 900 and exits with 0 when it was
confirmed, prints 902 and exits with 1 when it was cancelled.</source>
        <comment>help</comment>
        <translation>Zeigt ein Bild zum Bestätigen oder Abbrechen: gibt 900 aus und endet mit 0, wenn es
bestätigt wurde, gibt 902 aus und endet mit 1, wenn abgebrochen wurde.</translation>
    </message>
    <message>
        <source>which picture? korva-preview PICTURE</source>
        <comment>command line</comment>
        <translation>welches Bild? korva-preview PICTURE</translation>
    </message>
</context>
<context>
    <name>pad::PrintDialog</name>
    <message>
        <source>Printer</source>
        <comment>print</comment>
        <translation>Drucker</translation>
    </message>
</context>
<context>
    <name>pad::Recording</name>
    <message>
        <source>a number</source>
        <comment>recording; what a command needs</comment>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a tool</source>
        <comment>recording; what a command needs</comment>
        <translation>ein Werkzeug</translation>
    </message>
    <message>
        <source>a zoom</source>
        <comment>recording; what a command needs</comment>
        <translation>eine Vergrößerung</translation>
    </message>
    <message>
        <source>a canvas type</source>
        <comment>recording; what a command needs</comment>
        <translation>eine Art von Leinwand</translation>
    </message>
    <message>
        <source>a colour #rrggbb</source>
        <comment>recording; what a command needs</comment>
        <translation>eine Farbe #rrggbb</translation>
    </message>
    <message>
        <source>a key</source>
        <comment>recording; what a command needs</comment>
        <translation>eine Taste</translation>
    </message>
    <message>
        <source>a text</source>
        <comment>recording; what a command needs</comment>
        <translation>einen Text</translation>
    </message>
    <message>
        <source>a file name</source>
        <comment>recording; what a command needs</comment>
        <translation>einen Dateinamen</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <comment>recording</comment>
        <translation>unbekannter Befehl »%1«</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <comment>recording</comment>
        <translation>»%1« braucht %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2, not &apos;%3&apos;</source>
        <comment>recording</comment>
        <translation>»%1« braucht %2, nicht »%3«</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is too much for &apos;%2&apos;</source>
        <comment>recording</comment>
        <translation>»%1« ist zu viel für »%2«</translation>
    </message>
    <message>
        <source>this is not UTF-8 text</source>
        <comment>recording</comment>
        <translation>das ist kein UTF-8-Text</translation>
    </message>
    <message>
        <source>cannot read &apos;%1&apos;: %2</source>
        <comment>recording</comment>
        <translation>»%1« lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>a blank is missing at &apos;%1&apos;</source>
        <comment>recording</comment>
        <translation>bei »%1« fehlt ein Leerzeichen</translation>
    </message>
    <message>
        <source>unknown escape &apos;\%1&apos;</source>
        <comment>recording</comment>
        <translation>unbekanntes Zeichen »\%1«</translation>
    </message>
    <message>
        <source>the closing quote is missing</source>
        <comment>recording</comment>
        <translation>das schließende Anführungszeichen fehlt</translation>
    </message>
    <message>
        <source>a number of steps</source>
        <comment>recording; what a command needs</comment>
        <translation>eine Anzahl von Schritten</translation>
    </message>
</context>
<context>
    <name>pad::Recovery</name>
    <message>
        <source>Older ones are among the earlier drawings.</source>
        <comment>recovery</comment>
        <translation>Ältere sind unter den früheren Zeichnungen.</translation>
    </message>
    <message>
        <source>Bring it back</source>
        <comment>recovery</comment>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Not now</source>
        <comment>recovery</comment>
        <translation>Jetzt nicht</translation>
    </message>
    <message>
        <source>Save changes to drawing before bringing another one back?</source>
        <comment>recovery</comment>
        <translation>Änderungen an der Zeichnung speichern, bevor eine andere zurückgeholt wird?</translation>
    </message>
    <message>
        <source>No copy of the drawing can be kept: %1</source>
        <comment>recovery</comment>
        <translation>Von der Zeichnung lässt sich keine Kopie aufheben: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>recovery</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>A drawing of %1 was not saved.</source>
        <comment>recovery; %1: &apos;today at 9:30&apos;</comment>
        <translation>Eine Zeichnung von %1 wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>A drawing of %1 on %2 was not saved.</source>
        <comment>recovery; %1: &apos;today at 9:30&apos;, %2: a file</comment>
        <translation>Eine Zeichnung von %1 auf %2 wurde nicht gespeichert.</translation>
    </message>
</context>
<context>
    <name>pad::StatusLine</name>
    <message>
        <source>Tool</source>
        <comment>status line</comment>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>Picture size</source>
        <comment>status line</comment>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>status line</comment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Position</source>
        <comment>status line</comment>
        <translation>Position</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <comment>picture size</comment>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>zoom</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>position</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Status</source>
        <comment>status line</comment>
        <translation>Status</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>status line, spoken</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Size</source>
        <comment>status line; of what is dragged</comment>
        <translation>Größe</translation>
    </message>
</context>
</TS>
