<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="en">
<context>
    <name>KORVA_Canvas</name>
    <message>
        <source>Cut</source>
        <comment>2.11.1;MENU</comment>
        <translation>Leikkaa</translation>
    </message>
    <message>
        <source>Copy</source>
        <comment>2.11.1;MENU</comment>
        <translation>Kopioi</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>2.11.1;MENU</comment>
        <translation>Liitä</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>menu of the canvas</comment>
        <translation>Piirros</translation>
    </message>
</context>
<context>
    <name>KORVA_ChooseCanvasDlg</name>
    <message>
        <source>32 X 40(stamp)</source>
        <comment>2.11.3;MENU</comment>
        <translation>32 X 40 (leima)</translation>
    </message>
    <message>
        <source>200 X 170(normal)</source>
        <comment>2.11.3;MENU</comment>
        <translation>200 X 170 (tavallinen)</translation>
    </message>
    <message>
        <source>Canvas Size:</source>
        <comment>2.11.3;DIALOG_CONTEXT</comment>
        <translation>Piirtoalueen koko:</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.3;SOFTKEY_2BUTTON</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.3;SOFTKEY_2BUTTON</comment>
        <translation>Peru</translation>
    </message>
</context>
<context>
    <name>KORVA_ColorPicker</name>
    <message>
        <source>Red</source>
        <comment>colour channel</comment>
        <translation>Punainen</translation>
    </message>
    <message>
        <source>Green</source>
        <comment>colour channel</comment>
        <translation>Vihreä</translation>
    </message>
    <message>
        <source>Blue</source>
        <comment>colour channel</comment>
        <translation>Sininen</translation>
    </message>
    <message>
        <source>Color</source>
        <comment>2.11.6;DIALOG_TITLE</comment>
        <translation>Väri</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.6;SOFTKEY_2BUTTON</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.6;SOFTKEY_2BUTTON</comment>
        <translation>Peru</translation>
    </message>
</context>
<context>
    <name>KORVA_EditCanvas</name>
    <message>
        <source>Save changes to drawing before opening?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>Tallennetaanko piirroksen muutokset ennen avaamista?</translation>
    </message>
    <message>
        <source>Save changes to drawing before choosing canvas?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>Tallennetaanko piirroksen muutokset ennen piirtoalueen valintaa?</translation>
    </message>
    <message>
        <source>Save changes to drawing before creating?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>Tallennetaanko piirroksen muutokset ennen uuden luomista?</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>2.11.2.3;SOFTKEY_2BUTTON</comment>
        <translation>Kyllä</translation>
    </message>
    <message>
        <source>No</source>
        <comment>2.11.2.3;SOFTKEY_2BUTTON</comment>
        <translation>Ei</translation>
    </message>
    <message>
        <source>The image is oversize</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Kuva on liian suuri</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Tiedoston avaaminen epäonnistui</translation>
    </message>
    <message>
        <source>This file can not be opened.</source>
        <comment>4.4.4.2;DIALOG_ICON_50_WARP</comment>
        <translation>Tätä tiedostoa ei voi avata.</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>4.4.4.2;SOFTKEY_1BUTTON</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>open buffer fail!</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Annettua kuvaa ei voitu avata!</translation>
    </message>
    <message>
        <source>Insert stamp</source>
        <comment>PICK_DIALOG;TITLE</comment>
        <translation>Lisää leima</translation>
    </message>
    <message>
        <source>Insert</source>
        <comment>PICK_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Lisää</translation>
    </message>
    <message>
        <source>Saved Successfully</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Tallennus onnistui</translation>
    </message>
    <message>
        <source>Saved Failed</source>
        <comment>2.11.2.10;DIALOG_ICON_50</comment>
        <translation>Tallennus epäonnistui</translation>
    </message>
    <message>
        <source>Delete drawing?</source>
        <comment>2.11.2.1;DIALOG_ICON_50</comment>
        <translation>Poistetaanko piirros?</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.2.1;SOFTKEY_2BUTTON</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.2.1;SOFTKEY_2BUTTON</comment>
        <translation>Peru</translation>
    </message>
    <message>
        <source>Fit to page</source>
        <comment>2.11.1;MENU</comment>
        <translation>Sovita</translation>
    </message>
    <message>
        <source>Tool</source>
        <comment>tool bar</comment>
        <translation>Työkalu</translation>
    </message>
    <message>
        <source>Tool option</source>
        <comment>tool bar</comment>
        <translation>Työkalun asetus</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>tool bar</comment>
        <translation>Zoomaus</translation>
    </message>
    <message>
        <source>Color</source>
        <comment>tool bar</comment>
        <translation>Väri</translation>
    </message>
    <message>
        <source>Select</source>
        <comment>tool</comment>
        <translation>Valinta</translation>
    </message>
    <message>
        <source>Eraser</source>
        <comment>tool</comment>
        <translation>Pyyhekumi</translation>
    </message>
    <message>
        <source>Line</source>
        <comment>tool</comment>
        <translation>Viiva</translation>
    </message>
    <message>
        <source>Pencil</source>
        <comment>tool</comment>
        <translation>Kynä</translation>
    </message>
    <message>
        <source>Text</source>
        <comment>tool</comment>
        <translation>Teksti</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <comment>tool</comment>
        <translation>Suorakulmio</translation>
    </message>
    <message>
        <source>Hand</source>
        <comment>tool</comment>
        <translation>Käsi</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <comment>tool</comment>
        <translation>Ellipsi</translation>
    </message>
    <message>
        <source>Small</source>
        <comment>tool option</comment>
        <translation>Pieni</translation>
    </message>
    <message>
        <source>Medium</source>
        <comment>tool option</comment>
        <translation>Keskikokoinen</translation>
    </message>
    <message>
        <source>Large</source>
        <comment>tool option</comment>
        <translation>Suuri</translation>
    </message>
    <message>
        <source>Select area</source>
        <comment>tool option</comment>
        <translation>Valitse alue</translation>
    </message>
    <message>
        <source>Move view</source>
        <comment>tool option</comment>
        <translation>Siirrä näkymää</translation>
    </message>
    <message>
        <source>7 point</source>
        <comment>tool option</comment>
        <translation>7 pistettä</translation>
    </message>
    <message>
        <source>9 point</source>
        <comment>tool option</comment>
        <translation>9 pistettä</translation>
    </message>
    <message>
        <source>11 point</source>
        <comment>tool option</comment>
        <translation>11 pistettä</translation>
    </message>
    <message>
        <source>Outline</source>
        <comment>tool option</comment>
        <translation>Ääriviiva</translation>
    </message>
    <message>
        <source>Filled</source>
        <comment>tool option</comment>
        <translation>Täytetty</translation>
    </message>
    <message>
        <source>Opening picture</source>
        <comment>WAIT_BOX</comment>
        <translation>Avataan kuvaa</translation>
    </message>
    <message>
        <source>Drawing editor</source>
        <comment>screen reader</comment>
        <translation>Piirrosmuokkain</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>screen reader</comment>
        <translation>Piirros</translation>
    </message>
    <message>
        <source>Floating piece</source>
        <comment>screen reader</comment>
        <translation>Kelluva osa</translation>
    </message>
    <message>
        <source>Zoom %1 %</source>
        <comment>screen reader</comment>
        <translation>Zoomaus %1 %</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <comment>screen reader</comment>
        <translation>%1 kertaa %2 pikseliä</translation>
    </message>
    <message>
        <source>Pen down at %1, %2</source>
        <comment>screen reader</comment>
        <translation>Kynä alhaalla kohdassa %1, %2</translation>
    </message>
    <message>
        <source>Pen at %1, %2</source>
        <comment>screen reader</comment>
        <translation>Kynä kohdassa %1, %2</translation>
    </message>
    <message>
        <source>A text is open</source>
        <comment>screen reader</comment>
        <translation>Tekstin kirjoitus on kesken</translation>
    </message>
    <message>
        <source>A piece of %1 by %2 pixels floats at %3, %4</source>
        <comment>screen reader</comment>
        <translation>Osa, kooltaan %1 kertaa %2 pikseliä, kelluu kohdassa %3, %4</translation>
    </message>
    <message>
        <source>red</source>
        <comment>color</comment>
        <translation>punainen</translation>
    </message>
    <message>
        <source>orange</source>
        <comment>color</comment>
        <translation>oranssi</translation>
    </message>
    <message>
        <source>yellow</source>
        <comment>color</comment>
        <translation>keltainen</translation>
    </message>
    <message>
        <source>green</source>
        <comment>color</comment>
        <translation>vihreä</translation>
    </message>
    <message>
        <source>turquoise</source>
        <comment>color</comment>
        <translation>turkoosi</translation>
    </message>
    <message>
        <source>blue</source>
        <comment>color</comment>
        <translation>sininen</translation>
    </message>
    <message>
        <source>violet</source>
        <comment>color</comment>
        <translation>violetti</translation>
    </message>
    <message>
        <source>pink</source>
        <comment>color</comment>
        <translation>vaaleanpunainen</translation>
    </message>
    <message>
        <source>black</source>
        <comment>color</comment>
        <translation>musta</translation>
    </message>
    <message>
        <source>gray</source>
        <comment>color</comment>
        <translation>harmaa</translation>
    </message>
    <message>
        <source>white</source>
        <comment>color</comment>
        <translation>valkoinen</translation>
    </message>
    <message>
        <source>brown</source>
        <comment>color</comment>
        <translation>ruskea</translation>
    </message>
    <message>
        <source>Bold</source>
        <comment>tool option</comment>
        <translation>Lihavoitu</translation>
    </message>
    <message>
        <source>Thin edge</source>
        <comment>tool option; around what is filled</comment>
        <translation>Ohut reuna</translation>
    </message>
    <message>
        <source>Thick edge</source>
        <comment>tool option; around what is filled</comment>
        <translation>Paksu reuna</translation>
    </message>
</context>
<context>
    <name>KORVA_ImageView_Dialog</name>
    <message>
        <source>Cancel</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>Peru</translation>
    </message>
    <message>
        <source>Confirm</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>Vahvista</translation>
    </message>
    <message>
        <source>The image is oversize</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Kuva on liian suuri</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Tiedoston avaaminen epäonnistui</translation>
    </message>
    <message>
        <source>Picture load error.</source>
        <comment>2.16.5.9.4;FORM_CONTEXT_WITH_SCROLL_ICON1_20_WARP2</comment>
        <translation>Kuvan lataaminen epäonnistui.</translation>
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
        <translation>Kopioi</translation>
    </message>
    <message>
        <source>Cut</source>
        <comment>2.11.1;MENU</comment>
        <translation>Leikkaa</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>2.11.1;MENU</comment>
        <translation>Liitä</translation>
    </message>
    <message>
        <source>Floating piece</source>
        <comment>menu of the piece</comment>
        <translation>Kelluva osa</translation>
    </message>
    <message>
        <source>Turn left</source>
        <comment>menu of the piece</comment>
        <translation>Käännä vasemmalle</translation>
    </message>
    <message>
        <source>Turn right</source>
        <comment>menu of the piece</comment>
        <translation>Käännä oikealle</translation>
    </message>
    <message>
        <source>Flip</source>
        <comment>menu of the piece: left and right change places</comment>
        <translation>Peilaa</translation>
    </message>
    <message>
        <source>Double</source>
        <comment>menu of the piece: twice as wide and high</comment>
        <translation>Tuplaa koko</translation>
    </message>
    <message>
        <source>Halve</source>
        <comment>menu of the piece: half as wide and high</comment>
        <translation>Puolita koko</translation>
    </message>
    <message>
        <source>White is clear</source>
        <comment>menu of the piece: a switch</comment>
        <translation>Valkoinen läpinäkyvä</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>menu of the piece</comment>
        <translation>Poista</translation>
    </message>
</context>
<context>
    <name>KORVA_Preview_Dialog</name>
    <message>
        <source>Cancel</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>Peru</translation>
    </message>
    <message>
        <source>Confirm</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>Vahvista</translation>
    </message>
</context>
<context>
    <name>UTIL_FolderDialog</name>
    <message>
        <source>Up</source>
        <comment>FOLDER_DIALOG;BUTTON</comment>
        <translation>Ylös</translation>
    </message>
    <message>
        <source>Order</source>
        <comment>FOLDER_DIALOG;BUTTON</comment>
        <translation>Järjestys</translation>
    </message>
    <message>
        <source>By name</source>
        <comment>FOLDER_DIALOG;LIST</comment>
        <translation>Nimen mukaan</translation>
    </message>
    <message>
        <source>Newest first</source>
        <comment>FOLDER_DIALOG;LIST</comment>
        <translation>Uusin ensin</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>FOLDER_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Peru</translation>
    </message>
</context>
<context>
    <name>UTIL_MessageBox</name>
    <message>
        <source>Cancel</source>
        <comment>message box</comment>
        <translation>Peru</translation>
    </message>
</context>
<context>
    <name>UTIL_PickDialog</name>
    <message>
        <source>Open picture</source>
        <comment>PICK_DIALOG;TITLE</comment>
        <translation>Avaa kuva</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>PICK_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Avaa</translation>
    </message>
</context>
<context>
    <name>UTIL_PictureView</name>
    <message>
        <source>No pictures here</source>
        <comment>FOLDER_DIALOG;CONTEXT</comment>
        <translation>Täällä ei ole kuvia</translation>
    </message>
    <message>
        <source>This folder cannot be read</source>
        <comment>FOLDER_DIALOG;CONTEXT</comment>
        <translation>Kansiota ei voi lukea</translation>
    </message>
</context>
<context>
    <name>UTIL_SaveDialog</name>
    <message>
        <source>Save picture as</source>
        <comment>SAVE_DIALOG;TITLE</comment>
        <translation>Tallenna kuva nimellä</translation>
    </message>
    <message>
        <source>Save</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Tallenna</translation>
    </message>
    <message>
        <source>File name</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>Tiedoston nimi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Peru</translation>
    </message>
    <message>
        <source>Replace</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Korvaa</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <comment>SAVE_DIALOG;DIALOG_ICON_50_WARP</comment>
        <translation>Korvataanko %1?</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>Piirros</translation>
    </message>
    <message>
        <source>Drawing %1</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>Piirros %1</translation>
    </message>
</context>
<context>
    <name>UTIL_ScrollBar</name>
    <message>
        <source>Scroll sideways</source>
        <comment>screen reader</comment>
        <translation>Vieritys sivusuunnassa</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <comment>screen reader</comment>
        <translation>Vieritys pystysuunnassa</translation>
    </message>
</context>
<context>
    <name>UTIL_Veil</name>
    <message>
        <source>Dimmed for a dialog</source>
        <comment>screen reader</comment>
        <translation>Himmennetty valintaikkunan ajaksi</translation>
    </message>
</context>
<context>
    <name>UTIL_WaitBox</name>
    <message>
        <source>Cancel</source>
        <comment>WAIT_BOX;SOFTKEY_1BUTTON</comment>
        <translation>Peru</translation>
    </message>
</context>
<context>
    <name>desktop</name>
    <message>
        <source>Korva Pad</source>
        <comment>Name</comment>
        <translation>Korva-piirustuslehtiö</translation>
    </message>
    <message>
        <source>Drawing Pad</source>
        <comment>GenericName</comment>
        <translation>Piirustuslehtiö</translation>
    </message>
    <message>
        <source>Draw and edit small pictures</source>
        <comment>Comment</comment>
        <translation>Piirrä ja muokkaa pieniä kuvia</translation>
    </message>
    <message>
        <source>draw;paint;picture;bitmap;sketch;</source>
        <comment>Keywords; each ends with a semicolon</comment>
        <translation>piirrä;piirros;piirtäminen;maalaa;kuva;bittikartta;luonnos;</translation>
    </message>
    <message>
        <source>A drawing pad for small touch screens, which works as well with a mouse: pencil, line, rectangle, ellipse, eraser, text and a selection that can be moved, stretched and turned.</source>
        <comment>description</comment>
        <translation>Piirustuslehtiö pienille kosketusnäytöille, joka toimii yhtä hyvin hiirellä: kynä, viiva, suorakulmio, ellipsi, pyyhekumi, teksti ja valinta, jota voi siirtää, venyttää ja kääntää.</translation>
    </message>
    <message>
        <source>It reads PNG, GIF, JPEG, BMP and WBMP pictures and writes PNG, JPEG and BMP.</source>
        <comment>description</comment>
        <translation>Se lukee PNG-, GIF-, JPEG-, BMP- ja WBMP-kuvia ja kirjoittaa PNG-, JPEG- ja BMP-kuvia.</translation>
    </message>
</context>
<context>
    <name>pad::ColorPopup</name>
    <message>
        <source>Colors</source>
        <comment>color pop-up</comment>
        <translation>Värit</translation>
    </message>
    <message>
        <source>Value of the color</source>
        <comment>color pop-up</comment>
        <translation>Värin arvo</translation>
    </message>
    <message>
        <source>#rrggbb, or red, green and blue from 0 to 255</source>
        <comment>color pop-up</comment>
        <translation>#rrggbb tai punainen, vihreä ja sininen 0–255</translation>
    </message>
    <message>
        <source>More ...</source>
        <comment>color pop-up; opens a dialog</comment>
        <translation>Lisää ...</translation>
    </message>
</context>
<context>
    <name>pad::ColorsDialog</name>
    <message>
        <source>Plain</source>
        <comment>few colors</comment>
        <translation>Tasainen</translation>
    </message>
    <message>
        <source>Dotted</source>
        <comment>few colors</comment>
        <translation>Pisteinen</translation>
    </message>
</context>
<context>
    <name>pad::CommandLine</name>
    <message>
        <source>--scale takes a number from 1 to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>--scale vaatii luvun väliltä 1–%1, ei arvoa ”%2”</translation>
    </message>
    <message>
        <source>show every pixel N x N (default: as last time, or what suits the screen)</source>
        <comment>help</comment>
        <translation>näytä jokainen pikseli koossa N x N (muuten: kuten viimeksi tai sopiva)</translation>
    </message>
    <message>
        <source>speak this language, like de or pt_BR</source>
        <comment>help</comment>
        <translation>käytä tätä kieltä, esim. de tai pt_BR</translation>
    </message>
    <message>
        <source>play a recording; no pointer is needed</source>
        <comment>help</comment>
        <translation>toista tallenne; osoitinlaitetta ei tarvita</translation>
    </message>
    <message>
        <source>write a recording of what is drawn</source>
        <comment>help</comment>
        <translation>tee tallenne piirtämisestä</translation>
    </message>
    <message>
        <source>save the drawing after the replay, then exit</source>
        <comment>help</comment>
        <translation>tallenna piirros toiston jälkeen ja lopeta</translation>
    </message>
    <message>
        <source>write the window as PNG, then exit</source>
        <comment>help</comment>
        <translation>kirjoita ikkuna PNG-kuvaksi ja lopeta</translation>
    </message>
    <message>
        <source>keep no copy of what is not saved, and offer none</source>
        <comment>help</comment>
        <translation>älä säilytä äläkä tarjoa kopiota tallentamattomasta</translation>
    </message>
    <message>
        <source>show this text</source>
        <comment>help</comment>
        <translation>näytä tämä teksti</translation>
    </message>
    <message>
        <source>show the version</source>
        <comment>help</comment>
        <translation>näytä versio</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <comment>command line</comment>
        <translation>%1 on annettu kahdesti</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <comment>command line</comment>
        <translation>%1 ei ota arvoa</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; (--help lists them)</source>
        <comment>command line</comment>
        <translation>tuntematon valitsin ”%1” (--help luettelee ne)</translation>
    </message>
    <message>
        <source>%1 needs a value: %1 %2</source>
        <comment>command line</comment>
        <translation>%1 vaatii arvon: %1 %2</translation>
    </message>
    <message>
        <source>one picture at a time: &apos;%1&apos; and &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>vain yksi kuva kerrallaan: ”%1” ja ”%2”</translation>
    </message>
    <message>
        <source>the picture&apos;s name is empty</source>
        <comment>command line</comment>
        <translation>kuvan nimi on tyhjä</translation>
    </message>
    <message>
        <source>Usage: korva-pad [options] [picture]</source>
        <comment>help</comment>
        <translation>Käyttö: korva-pad [valitsimet] [kuva]</translation>
    </message>
    <message>
        <source>A drawing pad: draws on a new canvas or on the picture given.</source>
        <comment>help</comment>
        <translation>Piirustuslehtiö: piirtää uudelle piirtoalueelle tai annettuun kuvaan.</translation>
    </message>
    <message>
        <source>Options:</source>
        <comment>help</comment>
        <translation>Valitsimet:</translation>
    </message>
    <message>
        <source>--scale %1 does not fit a screen of %2 x %3; taking %4</source>
        <comment>command line</comment>
        <translation>--scale %1 ei mahdu näytölle, jonka koko on %2 x %3; käytetään arvoa %4</translation>
    </message>
    <message>
        <source>there is no language &apos;%1&apos;; taking English (known: %2)</source>
        <comment>command line</comment>
        <translation>kieltä ”%1” ei ole; käytetään englantia (tunnetut: %2)</translation>
    </message>
    <message>
        <source>--undo-steps takes a number from 1 to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>--undo-steps vaatii luvun väliltä 1–%1, ei arvoa ”%2”</translation>
    </message>
    <message>
        <source>--working-size takes WxH, up to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>--working-size tarvitsee muodon LxK, enintään %1, ei ”%2”</translation>
    </message>
    <message>
        <source>--working-depth takes 16 or 24, not &apos;%1&apos;</source>
        <comment>command line</comment>
        <translation>--working-depth tarvitsee arvon 16 tai 24, ei ”%1”</translation>
    </message>
    <message>
        <source>how many steps can be undone (default: 50)</source>
        <comment>help</comment>
        <translation>montako vaihetta voi kumota (oletus: 50)</translation>
    </message>
    <message>
        <source>fit opened pictures into this size (default: 352x288)</source>
        <comment>help</comment>
        <translation>sovita avatut kuvat tähän kokoon (oletus: 352x288)</translation>
    </message>
    <message>
        <source>the colour depth of opened pictures (default: 16)</source>
        <comment>help</comment>
        <translation>avattujen kuvien värisyvyys (oletus: 16)</translation>
    </message>
</context>
<context>
    <name>pad::Commands</name>
    <message>
        <source>&amp;New ...</source>
        <comment>menu</comment>
        <translation>&amp;Uusi ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <comment>menu</comment>
        <translation>&amp;Avaa ...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <comment>menu</comment>
        <translation>&amp;Tallenna</translation>
    </message>
    <message>
        <source>Save &amp;as ...</source>
        <comment>menu</comment>
        <translation>Tallenna nim&amp;ellä ...</translation>
    </message>
    <message>
        <source>&amp;Keys ...</source>
        <comment>menu</comment>
        <translation>&amp;Pikanäppäimet ...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <comment>menu</comment>
        <translation>&amp;Lopeta</translation>
    </message>
    <message>
        <source>&amp;Picture</source>
        <comment>menu</comment>
        <translation>&amp;Kuva</translation>
    </message>
    <message>
        <source>&amp;Insert stamp ...</source>
        <comment>menu</comment>
        <translation>Lisää &amp;leima ...</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <comment>menu</comment>
        <translation>&amp;Tyhjennä</translation>
    </message>
    <message>
        <source>&amp;Earlier drawings ...</source>
        <comment>menu</comment>
        <translation>&amp;Aiemmat työt ...</translation>
    </message>
    <message>
        <source>&amp;Delete picture ...</source>
        <comment>menu</comment>
        <translation>&amp;Poista kuva ...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <comment>menu</comment>
        <translation>&amp;Muokkaa</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <comment>menu</comment>
        <translation>&amp;Kumoa</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <comment>menu</comment>
        <translation>&amp;Tee uudelleen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <comment>menu</comment>
        <translation>&amp;Leikkaa</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <comment>menu</comment>
        <translation>K&amp;opioi</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <comment>menu</comment>
        <translation>L&amp;iitä</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <comment>menu</comment>
        <translation>&amp;Poista</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <comment>menu</comment>
        <translation>&amp;Valitse kaikki</translation>
    </message>
    <message>
        <source>Cop&amp;y drawing</source>
        <comment>menu</comment>
        <translation>Kopioi t&amp;yö</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <comment>menu</comment>
        <translation>T&amp;yökalu</translation>
    </message>
    <message>
        <source>Pe&amp;ncil</source>
        <comment>menu</comment>
        <translation>K&amp;ynä</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <comment>menu</comment>
        <translation>&amp;Viiva</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <comment>menu</comment>
        <translation>&amp;Suorakulmio</translation>
    </message>
    <message>
        <source>&amp;Ellipse</source>
        <comment>menu</comment>
        <translation>&amp;Ellipsi</translation>
    </message>
    <message>
        <source>Er&amp;aser</source>
        <comment>menu</comment>
        <translation>&amp;Pyyhekumi</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <comment>menu</comment>
        <translation>&amp;Teksti</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <comment>menu</comment>
        <translation>Va&amp;linta</translation>
    </message>
    <message>
        <source>&amp;Hand</source>
        <comment>menu</comment>
        <translation>&amp;Käsi</translation>
    </message>
    <message>
        <source>&amp;Color ...</source>
        <comment>menu</comment>
        <translation>Vä&amp;ri ...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <comment>menu</comment>
        <translation>&amp;Näytä</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <comment>menu</comment>
        <translation>&amp;Suurenna</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <comment>menu</comment>
        <translation>&amp;Pienennä</translation>
    </message>
    <message>
        <source>&amp;Real size</source>
        <comment>menu</comment>
        <translation>&amp;Todellinen koko</translation>
    </message>
    <message>
        <source>&amp;Fit to page</source>
        <comment>menu</comment>
        <translation>So&amp;vita sivulle</translation>
    </message>
    <message>
        <source>Full s&amp;creen</source>
        <comment>menu</comment>
        <translation>&amp;Koko näyttö</translation>
    </message>
    <message>
        <source>First option</source>
        <comment>menu</comment>
        <translation>Ensimmäinen asetus</translation>
    </message>
    <message>
        <source>Second option</source>
        <comment>menu</comment>
        <translation>Toinen asetus</translation>
    </message>
    <message>
        <source>Third option</source>
        <comment>menu</comment>
        <translation>Kolmas asetus</translation>
    </message>
    <message>
        <source>Menu</source>
        <comment>keys</comment>
        <translation>Valikko</translation>
    </message>
    <message>
        <source>Arrows</source>
        <comment>keys</comment>
        <translation>Nuolet</translation>
    </message>
    <message>
        <source>Move pen, piece</source>
        <comment>keys</comment>
        <translation>Kynä/osa liikkuu</translation>
    </message>
    <message>
        <source>Shift+arrows</source>
        <comment>keys</comment>
        <translation>Vaihto+nuolet</translation>
    </message>
    <message>
        <source>... by 10 pixels</source>
        <comment>keys</comment>
        <translation>... 10 pikseliä</translation>
    </message>
    <message>
        <source>Draw while held</source>
        <comment>keys</comment>
        <translation>Pidä ja piirrä</translation>
    </message>
    <message>
        <source>Pen down, up</source>
        <comment>keys</comment>
        <translation>Kynä alas, ylös</translation>
    </message>
    <message>
        <source>Put piece down</source>
        <comment>keys</comment>
        <translation>Laske osa</translation>
    </message>
    <message>
        <source>Alt+arrows</source>
        <comment>keys</comment>
        <translation>Alt+nuolet</translation>
    </message>
    <message>
        <source>Stretch piece</source>
        <comment>keys</comment>
        <translation>Venytä osaa</translation>
    </message>
    <message>
        <source>Turn piece</source>
        <comment>keys</comment>
        <translation>Käännä osaa</translation>
    </message>
    <message>
        <source>Drop piece</source>
        <comment>keys</comment>
        <translation>Hylkää osa</translation>
    </message>
    <message>
        <source>End text</source>
        <comment>keys</comment>
        <translation>Lopeta teksti</translation>
    </message>
    <message>
        <source>F&amp;inger pans</source>
        <comment>menu</comment>
        <translation>S&amp;ormi vierittää</translation>
    </message>
    <message>
        <source>&amp;Fill</source>
        <comment>menu</comment>
        <translation>T&amp;äyttö</translation>
    </message>
    <message>
        <source>Pic&amp;k color</source>
        <comment>menu</comment>
        <translation>P&amp;ipetti</translation>
    </message>
    <message>
        <source>&amp;New from picture ...</source>
        <comment>menu</comment>
        <translation>&amp;Uusi kuvasta ...</translation>
    </message>
    <message>
        <source>Save for a &amp;message ...</source>
        <comment>menu</comment>
        <translation>Tallenna &amp;viestiin ...</translation>
    </message>
    <message>
        <source>Save in &amp;few colors ...</source>
        <comment>menu</comment>
        <translation>Kopio vä&amp;hin värein ...</translation>
    </message>
    <message>
        <source>&amp;Print ...</source>
        <comment>menu</comment>
        <translation>Tul&amp;osta ...</translation>
    </message>
</context>
<context>
    <name>pad::Copies</name>
    <message>
        <source>The printer does not take it.</source>
        <comment>print</comment>
        <translation>Tulostin ei ota työtä vastaan.</translation>
    </message>
</context>
<context>
    <name>pad::CopyDialog</name>
    <message>
        <source>Save</source>
        <comment>copy</comment>
        <translation>Tallenna</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>copy</comment>
        <translation>Peru</translation>
    </message>
    <message>
        <source>One moment ...</source>
        <comment>copy</comment>
        <translation>Hetkinen ...</translation>
    </message>
    <message>
        <source>The picture does not fit.</source>
        <comment>copy</comment>
        <translation>Kuva ei mahdu.</translation>
    </message>
</context>
<context>
    <name>pad::Display</name>
    <message>
        <source>there is no display</source>
        <comment>display</comment>
        <translation>näyttöpalvelinta ei ole</translation>
    </message>
    <message>
        <source>cannot open display %1</source>
        <comment>display</comment>
        <translation>näyttöpalvelinta %1 ei voi avata</translation>
    </message>
    <message>
        <source>there is no screen</source>
        <comment>display</comment>
        <translation>näyttöä ei ole</translation>
    </message>
    <message>
        <source>cannot show anything on &apos;%1&apos;: %2</source>
        <comment>display</comment>
        <translation>kohteessa ”%1” ei voi näyttää mitään: %2</translation>
    </message>
    <message>
        <source>%1: the toolkit&apos;s plugin for Wayland (%2) is not installed</source>
        <comment>display; %1: its name, %2: a package</comment>
        <translation>%1: työkalupaketin Wayland-liitännäinen (%2) ei ole asennettuna</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <comment>display; names of displays</comment>
        <translation>%1 tai %2</translation>
    </message>
</context>
<context>
    <name>pad::Documents</name>
    <message>
        <source>No copy of the drawing can be kept. Give it up?</source>
        <comment>changes</comment>
        <translation>Piirroksesta ei voi säilyttää kopiota. Hylätäänkö piirros?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>changes</comment>
        <translation>Peru</translation>
    </message>
    <message>
        <source>Give it up</source>
        <comment>changes</comment>
        <translation>Hylkää</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>changes</comment>
        <translation>Kyllä</translation>
    </message>
    <message>
        <source>No</source>
        <comment>changes</comment>
        <translation>Ei</translation>
    </message>
    <message>
        <source>Save changes to drawing before closing?</source>
        <comment>changes</comment>
        <translation>Tallennetaanko piirroksen muutokset ennen sulkemista?</translation>
    </message>
    <message>
        <source>Black and white</source>
        <comment>canvas type</comment>
        <translation>Mustavalkoinen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln colors</source>
        <comment>canvas type</comment>
        <translation>
            <numerusform>%Ln väri</numerusform>
            <numerusform>%Ln väriä</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>canvas type</comment>
        <translation>Peru</translation>
    </message>
    <message>
        <source>How many colors?</source>
        <comment>canvas type</comment>
        <translation>Montako väriä?</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>saving</comment>
        <translation>Ei tallennettu: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>saving</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save changes to drawing before creating?</source>
        <comment>changes</comment>
        <translation>Tallennetaanko piirroksen muutokset ennen uuden luomista?</translation>
    </message>
    <message>
        <source>Save changes to drawing before opening?</source>
        <comment>changes</comment>
        <translation>Tallennetaanko piirroksen muutokset ennen avaamista?</translation>
    </message>
    <message>
        <source>%1 was changed since it was opened: replacing it would lose that.</source>
        <comment>saving</comment>
        <translation>%1 on muuttunut avaamisen jälkeen: korvattaessa muutos häviäisi.</translation>
    </message>
    <message>
        <source>Save as new</source>
        <comment>saving</comment>
        <translation>Tallenna uutena</translation>
    </message>
    <message>
        <source>Replace</source>
        <comment>saving</comment>
        <translation>Korvaa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>saving</comment>
        <translation>Peru</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>deleting</comment>
        <translation>Peru</translation>
    </message>
    <message>
        <source>Move %1 to the trash?</source>
        <comment>deleting</comment>
        <translation>Siirretäänkö %1 roskakoriin?</translation>
    </message>
    <message>
        <source>To the trash</source>
        <comment>deleting</comment>
        <translation>Roskakoriin</translation>
    </message>
    <message>
        <source>There is no trash for %1. Delete it for good?</source>
        <comment>deleting</comment>
        <translation>Kohteelle %1 ei ole roskakoria. Poistetaanko pysyvästi?</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>deleting</comment>
        <translation>Poista</translation>
    </message>
    <message>
        <source>Not deleted: %1</source>
        <comment>deleting</comment>
        <translation>Ei poistettu: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>deleting</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1 pictures can only be opened: the drawing of %2 pixels needs a new file.</source>
        <comment>saving; %1: &apos;GIF&apos;, %2: &apos;300 × 200&apos;</comment>
        <translation>%1-kuvat voi vain avata: %2 pikselin piirros tarvitsee uuden tiedoston.</translation>
    </message>
    <message>
        <source>%1 has %2 pixels and the drawing %3: replacing it would lose the rest.</source>
        <comment>saving; %1: a file, %2 and %3: &apos;300 × 200&apos;</comment>
        <translation>%1 on kooltaan %2 pikseliä ja piirros %3: korvattaessa loput häviäisivät.</translation>
    </message>
    <message>
        <source>%1 has more colors than the drawing of %2 pixels: replacing it would lose them.</source>
        <comment>saving; %1: a file, %2: &apos;300 × 200&apos;</comment>
        <translation>%1 sisältää enemmän värejä kuin %2 pikselin piirros: korvattaessa ne häviäisivät.</translation>
    </message>
    <message>
        <source>New from picture</source>
        <comment>pick dialog</comment>
        <translation>Uusi kuvasta</translation>
    </message>
    <message>
        <source>%1 was saved: %2</source>
        <comment>saving; %1: a file, %2: &apos;29.6 kB&apos;</comment>
        <translation>%1 tallennettu: %2</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <comment>size of a file</comment>
        <translation>%1 kt</translation>
    </message>
</context>
<context>
    <name>pad::DrawingFile</name>
    <message>
        <source>The disk is full.</source>
        <comment>saving</comment>
        <translation>Levy on täynnä.</translation>
    </message>
    <message>
        <source>No permission to write in %1.</source>
        <comment>saving</comment>
        <translation>Ei kirjoitusoikeutta kansioon %1.</translation>
    </message>
    <message>
        <source>%1 is on a disk that can only be read.</source>
        <comment>saving</comment>
        <translation>%1 on levyllä, jota voi vain lukea.</translation>
    </message>
    <message>
        <source>The disk reports an error.</source>
        <comment>saving</comment>
        <translation>Levy ilmoittaa virheestä.</translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <comment>saving</comment>
        <translation>Kansiota %1 ei ole.</translation>
    </message>
    <message>
        <source>There is a folder of this name.</source>
        <comment>saving</comment>
        <translation>Tämänniminen kansio on jo olemassa.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <comment>saving</comment>
        <translation>Nimi on liian pitkä.</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2</source>
        <comment>command line</comment>
        <translation>ei voi kirjoittaa tiedostoa ”%1”: %2</translation>
    </message>
    <message>
        <source>cannot open &apos;%1&apos;: %2</source>
        <comment>command line</comment>
        <translation>ei voi avata tiedostoa ”%1”: %2</translation>
    </message>
    <message>
        <source>GIF pictures are only read</source>
        <comment>command line</comment>
        <translation>GIF-kuvia voi vain lukea</translation>
    </message>
    <message>
        <source>Saving drawing</source>
        <comment>saving</comment>
        <translation>Tallennetaan piirrosta</translation>
    </message>
</context>
<context>
    <name>pad::EarlierDialog</name>
    <message>
        <source>Earlier drawings</source>
        <comment>earlier drawings</comment>
        <translation>Aiemmat työt</translation>
    </message>
    <message>
        <source>None was kept so far.</source>
        <comment>earlier drawings</comment>
        <translation>Vielä ei ole säilytetty yhtään.</translation>
    </message>
    <message>
        <source>Bring it back</source>
        <comment>earlier drawings</comment>
        <translation>Palauta</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>earlier drawings</comment>
        <translation>Peru</translation>
    </message>
    <message>
        <source>today at %1</source>
        <comment>time, in a list and in a sentence; %1: &apos;9:30&apos;</comment>
        <translation>tänään klo %1</translation>
    </message>
    <message>
        <source>yesterday at %1</source>
        <comment>time, in a list and in a sentence; %1: &apos;9:30&apos;</comment>
        <translation>eilen klo %1</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>time, in a list and in a sentence; %1: a date, %2: &apos;9:30&apos;</comment>
        <translation>%1 klo %2</translation>
    </message>
</context>
<context>
    <name>pad::KeysDialog</name>
    <message>
        <source>Keys</source>
        <comment>keys</comment>
        <translation>Pikanäppäimet</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>keys</comment>
        <translation>Sulje</translation>
    </message>
    <message>
        <source>Buttons</source>
        <comment>keys; title, of the tool bar&apos;s buttons</comment>
        <translation>Painikkeet</translation>
    </message>
</context>
<context>
    <name>pad::PadTools</name>
    <message>
        <source>Fill</source>
        <comment>tool</comment>
        <translation>Täyttö</translation>
    </message>
    <message>
        <source>Pick color</source>
        <comment>tool</comment>
        <translation>Pipetti</translation>
    </message>
    <message>
        <source>%1 points</source>
        <comment>tool option</comment>
        <translation>%1 pistettä</translation>
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
        <translation>Valikko</translation>
    </message>
    <message>
        <source>Drawing[*] - Korva</source>
        <comment>window title</comment>
        <translation>Piirros[*] - Korva</translation>
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
        <translation>kysymykseen ”%1” ei ole vastausta</translation>
    </message>
    <message>
        <source>no picture is named to open</source>
        <comment>replay</comment>
        <translation>avattavaa kuvaa ei ole nimetty</translation>
    </message>
    <message>
        <source>the drawing has no name to be saved under</source>
        <comment>replay</comment>
        <translation>piirroksella ei ole nimeä tallennusta varten</translation>
    </message>
</context>
<context>
    <name>pad::Player</name>
    <message>
        <source>the tool has no option %1</source>
        <comment>replay</comment>
        <translation>työkalulla ei ole asetusta %1</translation>
    </message>
    <message>
        <source>the drawing could not be saved</source>
        <comment>replay</comment>
        <translation>piirrosta ei voitu tallentaa</translation>
    </message>
</context>
<context>
    <name>pad::Preview</name>
    <message>
        <source>Usage: korva-preview [options] PICTURE</source>
        <comment>help</comment>
        <translation>Käyttö: korva-preview [valitsimet] PICTURE</translation>
    </message>
    <message>
        <source>Shows a picture to be confirmed or cancelled: prints 900 and exits with 0 when it was
confirmed, prints 902 and exits with 1 when it was cancelled.</source>
        <comment>help</comment>
        <translation>Näyttää kuvan vahvistettavaksi tai peruttavaksi: tulostaa 900 ja päättyy arvoon 0, kun
kuva vahvistetaan, tulostaa 902 ja päättyy arvoon 1, kun se perutaan.</translation>
    </message>
    <message>
        <source>which picture? korva-preview PICTURE</source>
        <comment>command line</comment>
        <translation>mikä kuva? korva-preview PICTURE</translation>
    </message>
</context>
<context>
    <name>pad::PrintDialog</name>
    <message>
        <source>Printer</source>
        <comment>print</comment>
        <translation>Tulostin</translation>
    </message>
</context>
<context>
    <name>pad::Recording</name>
    <message>
        <source>a number</source>
        <comment>recording; what a command needs</comment>
        <translation>luvun</translation>
    </message>
    <message>
        <source>a tool</source>
        <comment>recording; what a command needs</comment>
        <translation>työkalun</translation>
    </message>
    <message>
        <source>a zoom</source>
        <comment>recording; what a command needs</comment>
        <translation>zoomausarvon</translation>
    </message>
    <message>
        <source>a canvas type</source>
        <comment>recording; what a command needs</comment>
        <translation>piirtoalueen tyypin</translation>
    </message>
    <message>
        <source>a colour #rrggbb</source>
        <comment>recording; what a command needs</comment>
        <translation>värin #rrggbb</translation>
    </message>
    <message>
        <source>a key</source>
        <comment>recording; what a command needs</comment>
        <translation>näppäimen</translation>
    </message>
    <message>
        <source>a text</source>
        <comment>recording; what a command needs</comment>
        <translation>tekstin</translation>
    </message>
    <message>
        <source>a file name</source>
        <comment>recording; what a command needs</comment>
        <translation>tiedoston nimen</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <comment>recording</comment>
        <translation>tuntematon komento ”%1”</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <comment>recording</comment>
        <translation>”%1” vaatii %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2, not &apos;%3&apos;</source>
        <comment>recording</comment>
        <translation>”%1” vaatii %2, ei ”%3”</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is too much for &apos;%2&apos;</source>
        <comment>recording</comment>
        <translation>”%1” on liikaa komennolle ”%2”</translation>
    </message>
    <message>
        <source>this is not UTF-8 text</source>
        <comment>recording</comment>
        <translation>tämä ei ole UTF-8-tekstiä</translation>
    </message>
    <message>
        <source>cannot read &apos;%1&apos;: %2</source>
        <comment>recording</comment>
        <translation>ei voi lukea tiedostoa ”%1”: %2</translation>
    </message>
    <message>
        <source>a blank is missing at &apos;%1&apos;</source>
        <comment>recording</comment>
        <translation>välilyönti puuttuu kohdasta ”%1”</translation>
    </message>
    <message>
        <source>unknown escape &apos;\%1&apos;</source>
        <comment>recording</comment>
        <translation>tuntematon ohjausmerkintä ”\%1”</translation>
    </message>
    <message>
        <source>the closing quote is missing</source>
        <comment>recording</comment>
        <translation>lopettava lainausmerkki puuttuu</translation>
    </message>
    <message>
        <source>a number of steps</source>
        <comment>recording; what a command needs</comment>
        <translation>vaiheiden määrä</translation>
    </message>
</context>
<context>
    <name>pad::Recovery</name>
    <message>
        <source>Older ones are among the earlier drawings.</source>
        <comment>recovery</comment>
        <translation>Vanhemmat löytyvät aiemmista töistä.</translation>
    </message>
    <message>
        <source>Bring it back</source>
        <comment>recovery</comment>
        <translation>Palauta</translation>
    </message>
    <message>
        <source>Not now</source>
        <comment>recovery</comment>
        <translation>Ei nyt</translation>
    </message>
    <message>
        <source>Save changes to drawing before bringing another one back?</source>
        <comment>recovery</comment>
        <translation>Tallennetaanko piirroksen muutokset ennen toisen palauttamista?</translation>
    </message>
    <message>
        <source>No copy of the drawing can be kept: %1</source>
        <comment>recovery</comment>
        <translation>Piirroksesta ei voi säilyttää kopiota: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>recovery</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>A drawing of %1 was not saved.</source>
        <comment>recovery; %1: &apos;today at 9:30&apos;</comment>
        <translation>Piirrosta ei tallennettu (%1).</translation>
    </message>
    <message>
        <source>A drawing of %1 on %2 was not saved.</source>
        <comment>recovery; %1: &apos;today at 9:30&apos;, %2: a file</comment>
        <translation>Piirrosta kuvaan %2 ei tallennettu (%1).</translation>
    </message>
</context>
<context>
    <name>pad::StatusLine</name>
    <message>
        <source>Tool</source>
        <comment>status line</comment>
        <translation>Työkalu</translation>
    </message>
    <message>
        <source>Picture size</source>
        <comment>status line</comment>
        <translation>Kuvan koko</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>status line</comment>
        <translation>Zoomaus</translation>
    </message>
    <message>
        <source>Position</source>
        <comment>status line</comment>
        <translation>Sijainti</translation>
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
        <translation>Tila</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>status line, spoken</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Size</source>
        <comment>status line; of what is dragged</comment>
        <translation>Koko</translation>
    </message>
</context>
</TS>
