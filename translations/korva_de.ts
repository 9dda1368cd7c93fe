<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
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
</TS>
