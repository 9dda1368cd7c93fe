<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>KORVA_Canvas</name>
    <message>
        <source>Cut</source>
        <comment>2.11.1;MENU</comment>
        <translation>Вырезать</translation>
    </message>
    <message>
        <source>Copy</source>
        <comment>2.11.1;MENU</comment>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>2.11.1;MENU</comment>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>menu of the canvas</comment>
        <translation>Рисунок</translation>
    </message>
</context>
<context>
    <name>KORVA_ChooseCanvasDlg</name>
    <message>
        <source>32 X 40(stamp)</source>
        <comment>2.11.3;MENU</comment>
        <translation>32 X 40 (штамп)</translation>
    </message>
    <message>
        <source>200 X 170(normal)</source>
        <comment>2.11.3;MENU</comment>
        <translation>200 X 170 (обычный)</translation>
    </message>
    <message>
        <source>Canvas Size:</source>
        <comment>2.11.3;DIALOG_CONTEXT</comment>
        <translation>Размер холста:</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.3;SOFTKEY_2BUTTON</comment>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.3;SOFTKEY_2BUTTON</comment>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>KORVA_ColorPicker</name>
    <message>
        <source>Red</source>
        <comment>colour channel</comment>
        <translation>Красный</translation>
    </message>
    <message>
        <source>Green</source>
        <comment>colour channel</comment>
        <translation>Зелёный</translation>
    </message>
    <message>
        <source>Blue</source>
        <comment>colour channel</comment>
        <translation>Синий</translation>
    </message>
    <message>
        <source>Color</source>
        <comment>2.11.6;DIALOG_TITLE</comment>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.6;SOFTKEY_2BUTTON</comment>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.6;SOFTKEY_2BUTTON</comment>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>KORVA_EditCanvas</name>
    <message>
        <source>Save changes to drawing before opening?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>Сохранить изменения рисунка перед открытием?</translation>
    </message>
    <message>
        <source>Save changes to drawing before choosing canvas?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>Сохранить изменения рисунка перед выбором холста?</translation>
    </message>
    <message>
        <source>Save changes to drawing before creating?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>Сохранить изменения рисунка перед созданием нового?</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>2.11.2.3;SOFTKEY_2BUTTON</comment>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <comment>2.11.2.3;SOFTKEY_2BUTTON</comment>
        <translation>Нет</translation>
    </message>
    <message>
        <source>The image is oversize</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Изображение слишком большое</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Не удалось открыть файл</translation>
    </message>
    <message>
        <source>This file can not be opened.</source>
        <comment>4.4.4.2;DIALOG_ICON_50_WARP</comment>
        <translation>Этот файл нельзя открыть.</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>4.4.4.2;SOFTKEY_1BUTTON</comment>
        <translation>ОК</translation>
    </message>
    <message>
        <source>open buffer fail!</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Не удалось открыть переданное изображение!</translation>
    </message>
    <message>
        <source>Insert stamp</source>
        <comment>PICK_DIALOG;TITLE</comment>
        <translation>Вставка штампа</translation>
    </message>
    <message>
        <source>Insert</source>
        <comment>PICK_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Saved Successfully</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Успешно сохранено</translation>
    </message>
    <message>
        <source>Saved Failed</source>
        <comment>2.11.2.10;DIALOG_ICON_50</comment>
        <translation>Сохранить не удалось</translation>
    </message>
    <message>
        <source>Delete drawing?</source>
        <comment>2.11.2.1;DIALOG_ICON_50</comment>
        <translation>Удалить рисунок?</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.2.1;SOFTKEY_2BUTTON</comment>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.2.1;SOFTKEY_2BUTTON</comment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Fit to page</source>
        <comment>2.11.1;MENU</comment>
        <translation>Вписать</translation>
    </message>
    <message>
        <source>Tool</source>
        <comment>tool bar</comment>
        <translation>Инструмент</translation>
    </message>
    <message>
        <source>Tool option</source>
        <comment>tool bar</comment>
        <translation>Вариант инструмента</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>tool bar</comment>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Color</source>
        <comment>tool bar</comment>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>Select</source>
        <comment>tool</comment>
        <translation>Выделение</translation>
    </message>
    <message>
        <source>Eraser</source>
        <comment>tool</comment>
        <translation>Ластик</translation>
    </message>
    <message>
        <source>Line</source>
        <comment>tool</comment>
        <translation>Линия</translation>
    </message>
    <message>
        <source>Pencil</source>
        <comment>tool</comment>
        <translation>Карандаш</translation>
    </message>
    <message>
        <source>Text</source>
        <comment>tool</comment>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <comment>tool</comment>
        <translation>Прямоуг.</translation>
    </message>
    <message>
        <source>Hand</source>
        <comment>tool</comment>
        <translation>Рука</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <comment>tool</comment>
        <translation>Эллипс</translation>
    </message>
    <message>
        <source>Small</source>
        <comment>tool option</comment>
        <translation>Малый</translation>
    </message>
    <message>
        <source>Medium</source>
        <comment>tool option</comment>
        <translation>Средний</translation>
    </message>
    <message>
        <source>Large</source>
        <comment>tool option</comment>
        <translation>Большой</translation>
    </message>
    <message>
        <source>Select area</source>
        <comment>tool option</comment>
        <translation>Выделить область</translation>
    </message>
    <message>
        <source>Move view</source>
        <comment>tool option</comment>
        <translation>Переместить вид</translation>
    </message>
    <message>
        <source>7 point</source>
        <comment>tool option</comment>
        <translation>7 пунктов</translation>
    </message>
    <message>
        <source>9 point</source>
        <comment>tool option</comment>
        <translation>9 пунктов</translation>
    </message>
    <message>
        <source>11 point</source>
        <comment>tool option</comment>
        <translation>11 пунктов</translation>
    </message>
    <message>
        <source>Outline</source>
        <comment>tool option</comment>
        <translation>Контур</translation>
    </message>
    <message>
        <source>Filled</source>
        <comment>tool option</comment>
        <translation>С заливкой</translation>
    </message>
    <message>
        <source>Opening picture</source>
        <comment>WAIT_BOX</comment>
        <translation>Открытие изображения</translation>
    </message>
    <message>
        <source>Drawing editor</source>
        <comment>screen reader</comment>
        <translation>Редактор рисунка</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>screen reader</comment>
        <translation>Рисунок</translation>
    </message>
    <message>
        <source>Floating piece</source>
        <comment>screen reader</comment>
        <translation>Плавающий фрагмент</translation>
    </message>
    <message>
        <source>Zoom %1 %</source>
        <comment>screen reader</comment>
        <translation>Масштаб %1 %</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <comment>screen reader</comment>
        <translation>%1 на %2 пикселей</translation>
    </message>
    <message>
        <source>Pen down at %1, %2</source>
        <comment>screen reader</comment>
        <translation>Перо опущено в точке %1, %2</translation>
    </message>
    <message>
        <source>Pen at %1, %2</source>
        <comment>screen reader</comment>
        <translation>Перо в точке %1, %2</translation>
    </message>
    <message>
        <source>A text is open</source>
        <comment>screen reader</comment>
        <translation>Идёт ввод текста</translation>
    </message>
    <message>
        <source>A piece of %1 by %2 pixels floats at %3, %4</source>
        <comment>screen reader</comment>
        <translation>Фрагмент %1 на %2 пикселей плавает в точке %3, %4</translation>
    </message>
    <message>
        <source>red</source>
        <comment>color</comment>
        <translation>красный</translation>
    </message>
    <message>
        <source>orange</source>
        <comment>color</comment>
        <translation>оранжевый</translation>
    </message>
    <message>
        <source>yellow</source>
        <comment>color</comment>
        <translation>жёлтый</translation>
    </message>
    <message>
        <source>green</source>
        <comment>color</comment>
        <translation>зелёный</translation>
    </message>
    <message>
        <source>turquoise</source>
        <comment>color</comment>
        <translation>бирюзовый</translation>
    </message>
    <message>
        <source>blue</source>
        <comment>color</comment>
        <translation>синий</translation>
    </message>
    <message>
        <source>violet</source>
        <comment>color</comment>
        <translation>фиолетовый</translation>
    </message>
    <message>
        <source>pink</source>
        <comment>color</comment>
        <translation>розовый</translation>
    </message>
    <message>
        <source>black</source>
        <comment>color</comment>
        <translation>чёрный</translation>
    </message>
    <message>
        <source>gray</source>
        <comment>color</comment>
        <translation>серый</translation>
    </message>
    <message>
        <source>white</source>
        <comment>color</comment>
        <translation>белый</translation>
    </message>
    <message>
        <source>brown</source>
        <comment>color</comment>
        <translation>коричневый</translation>
    </message>
    <message>
        <source>Bold</source>
        <comment>tool option</comment>
        <translation>Полужирный</translation>
    </message>
    <message>
        <source>Thin edge</source>
        <comment>tool option; around what is filled</comment>
        <translation>Тонкий край</translation>
    </message>
    <message>
        <source>Thick edge</source>
        <comment>tool option; around what is filled</comment>
        <translation>Толстый край</translation>
    </message>
</context>
<context>
    <name>KORVA_ImageView_Dialog</name>
    <message>
        <source>Cancel</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Confirm</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>Принять</translation>
    </message>
    <message>
        <source>The image is oversize</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Изображение слишком большое</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>Не удалось открыть файл</translation>
    </message>
    <message>
        <source>Picture load error.</source>
        <comment>2.16.5.9.4;FORM_CONTEXT_WITH_SCROLL_ICON1_20_WARP2</comment>
        <translation>Не удалось загрузить изображение.</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.16.5.9.4;CST_5BUTTON</comment>
        <translation>ОК</translation>
    </message>
</context>
<context>
    <name>KORVA_PasteLabel</name>
    <message>
        <source>Copy</source>
        <comment>2.11.1;MENU</comment>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Cut</source>
        <comment>2.11.1;MENU</comment>
        <translation>Вырезать</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>2.11.1;MENU</comment>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Floating piece</source>
        <comment>menu of the piece</comment>
        <translation>Плавающий фрагмент</translation>
    </message>
    <message>
        <source>Turn left</source>
        <comment>menu of the piece</comment>
        <translation>Повернуть влево</translation>
    </message>
    <message>
        <source>Turn right</source>
        <comment>menu of the piece</comment>
        <translation>Повернуть вправо</translation>
    </message>
    <message>
        <source>Flip</source>
        <comment>menu of the piece: left and right change places</comment>
        <translation>Отразить</translation>
    </message>
    <message>
        <source>Double</source>
        <comment>menu of the piece: twice as wide and high</comment>
        <translation>Удвоить</translation>
    </message>
    <message>
        <source>Halve</source>
        <comment>menu of the piece: half as wide and high</comment>
        <translation>Уменьшить вдвое</translation>
    </message>
    <message>
        <source>White is clear</source>
        <comment>menu of the piece: a switch</comment>
        <translation>Белый прозрачен</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>menu of the piece</comment>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>KORVA_Preview_Dialog</name>
    <message>
        <source>Cancel</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Confirm</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>Принять</translation>
    </message>
</context>
<context>
    <name>UTIL_FolderDialog</name>
    <message>
        <source>Up</source>
        <comment>FOLDER_DIALOG;BUTTON</comment>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Order</source>
        <comment>FOLDER_DIALOG;BUTTON</comment>
        <translation>Порядок</translation>
    </message>
    <message>
        <source>By name</source>
        <comment>FOLDER_DIALOG;LIST</comment>
        <translation>По имени</translation>
    </message>
    <message>
        <source>Newest first</source>
        <comment>FOLDER_DIALOG;LIST</comment>
        <translation>Сначала новые</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>FOLDER_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>UTIL_MessageBox</name>
    <message>
        <source>Cancel</source>
        <comment>message box</comment>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>UTIL_PickDialog</name>
    <message>
        <source>Open picture</source>
        <comment>PICK_DIALOG;TITLE</comment>
        <translation>Открыть изображение</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>PICK_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Открыть</translation>
    </message>
</context>
<context>
    <name>UTIL_PictureView</name>
    <message>
        <source>No pictures here</source>
        <comment>FOLDER_DIALOG;CONTEXT</comment>
        <translation>Здесь нет изображений</translation>
    </message>
    <message>
        <source>This folder cannot be read</source>
        <comment>FOLDER_DIALOG;CONTEXT</comment>
        <translation>Эту папку нельзя прочитать</translation>
    </message>
</context>
<context>
    <name>UTIL_SaveDialog</name>
    <message>
        <source>Save picture as</source>
        <comment>SAVE_DIALOG;TITLE</comment>
        <translation>Сохранить рисунок как</translation>
    </message>
    <message>
        <source>Save</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>File name</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Replace</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <comment>SAVE_DIALOG;DIALOG_ICON_50_WARP</comment>
        <translation>Заменить %1?</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>Рисунок</translation>
    </message>
    <message>
        <source>Drawing %1</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>Рисунок %1</translation>
    </message>
</context>
<context>
    <name>UTIL_ScrollBar</name>
    <message>
        <source>Scroll sideways</source>
        <comment>screen reader</comment>
        <translation>Прокрутка по горизонтали</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <comment>screen reader</comment>
        <translation>Прокрутка по вертикали</translation>
    </message>
</context>
<context>
    <name>UTIL_Veil</name>
    <message>
        <source>Dimmed for a dialog</source>
        <comment>screen reader</comment>
        <translation>Затемнено на время диалога</translation>
    </message>
</context>
<context>
    <name>UTIL_WaitBox</name>
    <message>
        <source>Cancel</source>
        <comment>WAIT_BOX;SOFTKEY_1BUTTON</comment>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>desktop</name>
    <message>
        <source>Korva Pad</source>
        <comment>Name</comment>
        <translation>Альбом Korva</translation>
    </message>
    <message>
        <source>Drawing Pad</source>
        <comment>GenericName</comment>
        <translation>Альбом для рисования</translation>
    </message>
    <message>
        <source>Draw and edit small pictures</source>
        <comment>Comment</comment>
        <translation>Рисование и правка небольших изображений</translation>
    </message>
    <message>
        <source>draw;paint;picture;bitmap;sketch;</source>
        <comment>Keywords; each ends with a semicolon</comment>
        <translation>рисование;рисовать;рисунок;изображение;картинка;растр;эскиз;</translation>
    </message>
    <message>
        <source>A drawing pad for small touch screens, which works as well with a mouse: pencil, line, rectangle, ellipse, eraser, text and a selection that can be moved, stretched and turned.</source>
        <comment>description</comment>
        <translation>Альбом для рисования на небольших сенсорных экранах, с которым так же удобно работать и мышью: карандаш, линия, прямоугольник, эллипс, ластик, текст и выделение, которое можно перемещать, растягивать и поворачивать.</translation>
    </message>
    <message>
        <source>It reads PNG, GIF, JPEG, BMP and WBMP pictures and writes PNG, JPEG and BMP.</source>
        <comment>description</comment>
        <translation>Читает изображения PNG, GIF, JPEG, BMP и WBMP, сохраняет в PNG, JPEG и BMP.</translation>
    </message>
</context>
<context>
    <name>pad::ColorPopup</name>
    <message>
        <source>Colors</source>
        <comment>color pop-up</comment>
        <translation>Цвета</translation>
    </message>
    <message>
        <source>Value of the color</source>
        <comment>color pop-up</comment>
        <translation>Значение цвета</translation>
    </message>
    <message>
        <source>#rrggbb, or red, green and blue from 0 to 255</source>
        <comment>color pop-up</comment>
        <translation>#rrggbb или красный, зелёный и синий от 0 до 255</translation>
    </message>
    <message>
        <source>More ...</source>
        <comment>color pop-up; opens a dialog</comment>
        <translation>Ещё ...</translation>
    </message>
</context>
<context>
    <name>pad::ColorsDialog</name>
    <message>
        <source>Plain</source>
        <comment>few colors</comment>
        <translation>Ровно</translation>
    </message>
    <message>
        <source>Dotted</source>
        <comment>few colors</comment>
        <translation>Точками</translation>
    </message>
</context>
<context>
    <name>pad::CommandLine</name>
    <message>
        <source>--scale takes a number from 1 to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>для --scale нужно число от 1 до %1, а не «%2»</translation>
    </message>
    <message>
        <source>show every pixel N x N (default: as last time, or what suits the screen)</source>
        <comment>help</comment>
        <translation>показывать каждый пиксель как N x N (иначе: как в прошлый раз или по экрану)</translation>
    </message>
    <message>
        <source>speak this language, like de or pt_BR</source>
        <comment>help</comment>
        <translation>язык программы, например de или pt_BR</translation>
    </message>
    <message>
        <source>play a recording; no pointer is needed</source>
        <comment>help</comment>
        <translation>воспроизвести запись; мышь и перо не нужны</translation>
    </message>
    <message>
        <source>write a recording of what is drawn</source>
        <comment>help</comment>
        <translation>вести запись того, что рисуется</translation>
    </message>
    <message>
        <source>save the drawing after the replay, then exit</source>
        <comment>help</comment>
        <translation>сохранить рисунок после воспроизведения и выйти</translation>
    </message>
    <message>
        <source>write the window as PNG, then exit</source>
        <comment>help</comment>
        <translation>сохранить снимок окна в PNG и выйти</translation>
    </message>
    <message>
        <source>keep no copy of what is not saved, and offer none</source>
        <comment>help</comment>
        <translation>не хранить копию несохранённого и не предлагать её вернуть</translation>
    </message>
    <message>
        <source>show this text</source>
        <comment>help</comment>
        <translation>показать эту справку</translation>
    </message>
    <message>
        <source>show the version</source>
        <comment>help</comment>
        <translation>показать версию</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <comment>command line</comment>
        <translation>параметр %1 указан дважды</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <comment>command line</comment>
        <translation>параметр %1 не принимает значения</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; (--help lists them)</source>
        <comment>command line</comment>
        <translation>неизвестный параметр «%1» (список: --help)</translation>
    </message>
    <message>
        <source>%1 needs a value: %1 %2</source>
        <comment>command line</comment>
        <translation>параметру %1 нужно значение: %1 %2</translation>
    </message>
    <message>
        <source>one picture at a time: &apos;%1&apos; and &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>только одно изображение за раз: «%1» и «%2»</translation>
    </message>
    <message>
        <source>the picture&apos;s name is empty</source>
        <comment>command line</comment>
        <translation>имя изображения пустое</translation>
    </message>
    <message>
        <source>Usage: korva-pad [options] [picture]</source>
        <comment>help</comment>
        <translation>Использование: korva-pad [параметры] [изображение]</translation>
    </message>
    <message>
        <source>A drawing pad: draws on a new canvas or on the picture given.</source>
        <comment>help</comment>
        <translation>Альбом для рисования: рисует на новом холсте или на указанном изображении.</translation>
    </message>
    <message>
        <source>Options:</source>
        <comment>help</comment>
        <translation>Параметры:</translation>
    </message>
    <message>
        <source>--scale %1 does not fit a screen of %2 x %3; taking %4</source>
        <comment>command line</comment>
        <translation>--scale %1 не подходит для экрана %2 x %3; взято %4</translation>
    </message>
    <message>
        <source>there is no language &apos;%1&apos;; taking English (known: %2)</source>
        <comment>command line</comment>
        <translation>языка «%1» нет; взят английский (доступны: %2)</translation>
    </message>
    <message>
        <source>--undo-steps takes a number from 1 to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>для --undo-steps нужно число от 1 до %1, а не «%2»</translation>
    </message>
    <message>
        <source>--working-size takes WxH, up to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>--working-size принимает ШxВ, не больше %1, а не «%2»</translation>
    </message>
    <message>
        <source>--working-depth takes 16 or 24, not &apos;%1&apos;</source>
        <comment>command line</comment>
        <translation>--working-depth принимает 16 или 24, а не «%1»</translation>
    </message>
    <message>
        <source>how many steps can be undone (default: 50)</source>
        <comment>help</comment>
        <translation>сколько шагов можно отменить (иначе: 50)</translation>
    </message>
    <message>
        <source>fit opened pictures into this size (default: 352x288)</source>
        <comment>help</comment>
        <translation>вписывать открытые изображения в этот размер (иначе: 352x288)</translation>
    </message>
    <message>
        <source>the colour depth of opened pictures (default: 16)</source>
        <comment>help</comment>
        <translation>глубина цвета открытых изображений (иначе: 16)</translation>
    </message>
</context>
<context>
    <name>pad::Commands</name>
    <message>
        <source>&amp;New ...</source>
        <comment>menu</comment>
        <translation>&amp;Создать ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <comment>menu</comment>
        <translation>&amp;Открыть ...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <comment>menu</comment>
        <translation>Со&amp;хранить</translation>
    </message>
    <message>
        <source>Save &amp;as ...</source>
        <comment>menu</comment>
        <translation>Сохранить &amp;как ...</translation>
    </message>
    <message>
        <source>&amp;Keys ...</source>
        <comment>menu</comment>
        <translation>К&amp;лавиши ...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <comment>menu</comment>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>&amp;Picture</source>
        <comment>menu</comment>
        <translation>&amp;Изображение</translation>
    </message>
    <message>
        <source>&amp;Insert stamp ...</source>
        <comment>menu</comment>
        <translation>Вставить &amp;штамп ...</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <comment>menu</comment>
        <translation>&amp;Очистить</translation>
    </message>
    <message>
        <source>&amp;Earlier drawings ...</source>
        <comment>menu</comment>
        <translation>&amp;Прежние рисунки ...</translation>
    </message>
    <message>
        <source>&amp;Delete picture ...</source>
        <comment>menu</comment>
        <translation>&amp;Удалить файл ...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <comment>menu</comment>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <comment>menu</comment>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <comment>menu</comment>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <comment>menu</comment>
        <translation>&amp;Вырезать</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <comment>menu</comment>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <comment>menu</comment>
        <translation>Вст&amp;авить</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <comment>menu</comment>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <comment>menu</comment>
        <translation>В&amp;ыделить всё</translation>
    </message>
    <message>
        <source>Cop&amp;y drawing</source>
        <comment>menu</comment>
        <translation>Копия &amp;рисунка</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <comment>menu</comment>
        <translation>И&amp;нструмент</translation>
    </message>
    <message>
        <source>Pe&amp;ncil</source>
        <comment>menu</comment>
        <translation>&amp;Карандаш</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <comment>menu</comment>
        <translation>&amp;Линия</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <comment>menu</comment>
        <translation>&amp;Прямоугольник</translation>
    </message>
    <message>
        <source>&amp;Ellipse</source>
        <comment>menu</comment>
        <translation>&amp;Эллипс</translation>
    </message>
    <message>
        <source>Er&amp;aser</source>
        <comment>menu</comment>
        <translation>Л&amp;астик</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <comment>menu</comment>
        <translation>&amp;Текст</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <comment>menu</comment>
        <translation>&amp;Выделение</translation>
    </message>
    <message>
        <source>&amp;Hand</source>
        <comment>menu</comment>
        <translation>&amp;Рука</translation>
    </message>
    <message>
        <source>&amp;Color ...</source>
        <comment>menu</comment>
        <translation>&amp;Цвет ...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <comment>menu</comment>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <comment>menu</comment>
        <translation>&amp;Крупнее</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <comment>menu</comment>
        <translation>&amp;Мельче</translation>
    </message>
    <message>
        <source>&amp;Real size</source>
        <comment>menu</comment>
        <translation>&amp;Реальный размер</translation>
    </message>
    <message>
        <source>&amp;Fit to page</source>
        <comment>menu</comment>
        <translation>&amp;Вписать</translation>
    </message>
    <message>
        <source>Full s&amp;creen</source>
        <comment>menu</comment>
        <translation>На весь &amp;экран</translation>
    </message>
    <message>
        <source>First option</source>
        <comment>menu</comment>
        <translation>Первый вариант</translation>
    </message>
    <message>
        <source>Second option</source>
        <comment>menu</comment>
        <translation>Второй вариант</translation>
    </message>
    <message>
        <source>Third option</source>
        <comment>menu</comment>
        <translation>Третий вариант</translation>
    </message>
    <message>
        <source>Menu</source>
        <comment>keys</comment>
        <translation>Меню</translation>
    </message>
    <message>
        <source>Arrows</source>
        <comment>keys</comment>
        <translation>Стрелки</translation>
    </message>
    <message>
        <source>Move pen, piece</source>
        <comment>keys</comment>
        <translation>Сдвиг пера, фрагмента</translation>
    </message>
    <message>
        <source>Shift+arrows</source>
        <comment>keys</comment>
        <translation>Shift+стрелки</translation>
    </message>
    <message>
        <source>... by 10 pixels</source>
        <comment>keys</comment>
        <translation>... на 10 пикселей</translation>
    </message>
    <message>
        <source>Draw while held</source>
        <comment>keys</comment>
        <translation>Рисовать, удерживая</translation>
    </message>
    <message>
        <source>Pen down, up</source>
        <comment>keys</comment>
        <translation>Перо вниз, вверх</translation>
    </message>
    <message>
        <source>Put piece down</source>
        <comment>keys</comment>
        <translation>Положить фрагмент</translation>
    </message>
    <message>
        <source>Alt+arrows</source>
        <comment>keys</comment>
        <translation>Alt+стрелки</translation>
    </message>
    <message>
        <source>Stretch piece</source>
        <comment>keys</comment>
        <translation>Растянуть фрагмент</translation>
    </message>
    <message>
        <source>Turn piece</source>
        <comment>keys</comment>
        <translation>Повернуть фрагмент</translation>
    </message>
    <message>
        <source>Drop piece</source>
        <comment>keys</comment>
        <translation>Отбросить фрагмент</translation>
    </message>
    <message>
        <source>End text</source>
        <comment>keys</comment>
        <translation>Закончить текст</translation>
    </message>
    <message>
        <source>F&amp;inger pans</source>
        <comment>menu</comment>
        <translation>&amp;Палец двигает</translation>
    </message>
    <message>
        <source>&amp;Fill</source>
        <comment>menu</comment>
        <translation>&amp;Заливка</translation>
    </message>
    <message>
        <source>Pic&amp;k color</source>
        <comment>menu</comment>
        <translation>П&amp;ипетка</translation>
    </message>
    <message>
        <source>&amp;New from picture ...</source>
        <comment>menu</comment>
        <translation>&amp;Новый на картинке ...</translation>
    </message>
    <message>
        <source>Save for a &amp;message ...</source>
        <comment>menu</comment>
        <translation>Для &amp;сообщения ...</translation>
    </message>
    <message>
        <source>Save in &amp;few colors ...</source>
        <comment>menu</comment>
        <translation>Немного &amp;цветов ...</translation>
    </message>
    <message>
        <source>&amp;Print ...</source>
        <comment>menu</comment>
        <translation>Печ&amp;ать ...</translation>
    </message>
</context>
<context>
    <name>pad::Copies</name>
    <message>
        <source>The printer does not take it.</source>
        <comment>print</comment>
        <translation>Принтер не принимает задание.</translation>
    </message>
</context>
<context>
    <name>pad::CopyDialog</name>
    <message>
        <source>Save</source>
        <comment>copy</comment>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>copy</comment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>One moment ...</source>
        <comment>copy</comment>
        <translation>Минуту ...</translation>
    </message>
    <message>
        <source>The picture does not fit.</source>
        <comment>copy</comment>
        <translation>Рисунок не помещается.</translation>
    </message>
</context>
<context>
    <name>pad::Display</name>
    <message>
        <source>there is no display</source>
        <comment>display</comment>
        <translation>нет дисплея</translation>
    </message>
    <message>
        <source>cannot open display %1</source>
        <comment>display</comment>
        <translation>не удаётся открыть дисплей %1</translation>
    </message>
    <message>
        <source>there is no screen</source>
        <comment>display</comment>
        <translation>нет экрана</translation>
    </message>
    <message>
        <source>cannot show anything on &apos;%1&apos;: %2</source>
        <comment>display</comment>
        <translation>на «%1» ничего нельзя показать: %2</translation>
    </message>
    <message>
        <source>%1: the toolkit&apos;s plugin for Wayland (%2) is not installed</source>
        <comment>display; %1: its name, %2: a package</comment>
        <translation>%1: не установлен модуль Wayland графической библиотеки (%2)</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <comment>display; names of displays</comment>
        <translation>%1 или %2</translation>
    </message>
</context>
<context>
    <name>pad::Documents</name>
    <message>
        <source>No copy of the drawing can be kept. Give it up?</source>
        <comment>changes</comment>
        <translation>Не удаётся сохранить копию рисунка. Отбросить его?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>changes</comment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Give it up</source>
        <comment>changes</comment>
        <translation>Отбросить</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>changes</comment>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <comment>changes</comment>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Save changes to drawing before closing?</source>
        <comment>changes</comment>
        <translation>Сохранить изменения рисунка перед закрытием?</translation>
    </message>
    <message>
        <source>Black and white</source>
        <comment>canvas type</comment>
        <translation>Чёрно-белый</translation>
    </message>
    <message numerus="yes">
        <source>%Ln colors</source>
        <comment>canvas type</comment>
        <translation>
            <numerusform>%Ln цвет</numerusform>
            <numerusform>%Ln цвета</numerusform>
            <numerusform>%Ln цветов</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>canvas type</comment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>How many colors?</source>
        <comment>canvas type</comment>
        <translation>Сколько цветов?</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>saving</comment>
        <translation>Не сохранено: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>saving</comment>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Save changes to drawing before creating?</source>
        <comment>changes</comment>
        <translation>Сохранить изменения рисунка перед созданием нового?</translation>
    </message>
    <message>
        <source>Save changes to drawing before opening?</source>
        <comment>changes</comment>
        <translation>Сохранить изменения рисунка перед открытием?</translation>
    </message>
    <message>
        <source>%1 was changed since it was opened: replacing it would lose that.</source>
        <comment>saving</comment>
        <translation>%1: файл изменён после открытия, при замене эти изменения пропадут.</translation>
    </message>
    <message>
        <source>Save as new</source>
        <comment>saving</comment>
        <translation>В новый файл</translation>
    </message>
    <message>
        <source>Replace</source>
        <comment>saving</comment>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>saving</comment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>deleting</comment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Move %1 to the trash?</source>
        <comment>deleting</comment>
        <translation>Переместить %1 в корзину?</translation>
    </message>
    <message>
        <source>To the trash</source>
        <comment>deleting</comment>
        <translation>В корзину</translation>
    </message>
    <message>
        <source>There is no trash for %1. Delete it for good?</source>
        <comment>deleting</comment>
        <translation>Для %1 нет корзины. Удалить безвозвратно?</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>deleting</comment>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Not deleted: %1</source>
        <comment>deleting</comment>
        <translation>Не удалено: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>deleting</comment>
        <translation>ОК</translation>
    </message>
    <message>
        <source>%1 pictures can only be opened: the drawing of %2 pixels needs a new file.</source>
        <comment>saving; %1: &apos;GIF&apos;, %2: &apos;300 × 200&apos;</comment>
        <translation>Изображения %1 можно только открывать: для рисунка %2 пикселей нужен новый файл.</translation>
    </message>
    <message>
        <source>%1 has %2 pixels and the drawing %3: replacing it would lose the rest.</source>
        <comment>saving; %1: a file, %2 and %3: &apos;300 × 200&apos;</comment>
        <translation>Размер %1 — %2 пикселей, а рисунка — %3: при замене остальное пропадёт.</translation>
    </message>
    <message>
        <source>%1 has more colors than the drawing of %2 pixels: replacing it would lose them.</source>
        <comment>saving; %1: a file, %2: &apos;300 × 200&apos;</comment>
        <translation>В %1 больше цветов, чем в рисунке %2 пикселей: при замене они пропадут.</translation>
    </message>
    <message>
        <source>New from picture</source>
        <comment>pick dialog</comment>
        <translation>Новый на картинке</translation>
    </message>
    <message>
        <source>%1 was saved: %2</source>
        <comment>saving; %1: a file, %2: &apos;29.6 kB&apos;</comment>
        <translation>Сохранено %1: %2</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <comment>size of a file</comment>
        <translation>%1 кБ</translation>
    </message>
</context>
<context>
    <name>pad::DrawingFile</name>
    <message>
        <source>The disk is full.</source>
        <comment>saving</comment>
        <translation>Диск заполнен.</translation>
    </message>
    <message>
        <source>No permission to write in %1.</source>
        <comment>saving</comment>
        <translation>Нет прав на запись в %1.</translation>
    </message>
    <message>
        <source>%1 is on a disk that can only be read.</source>
        <comment>saving</comment>
        <translation>%1 находится на диске, доступном только для чтения.</translation>
    </message>
    <message>
        <source>The disk reports an error.</source>
        <comment>saving</comment>
        <translation>Диск сообщает об ошибке.</translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <comment>saving</comment>
        <translation>Папки %1 нет.</translation>
    </message>
    <message>
        <source>There is a folder of this name.</source>
        <comment>saving</comment>
        <translation>Уже есть папка с таким именем.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <comment>saving</comment>
        <translation>Слишком длинное имя.</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2</source>
        <comment>command line</comment>
        <translation>не удаётся записать «%1»: %2</translation>
    </message>
    <message>
        <source>cannot open &apos;%1&apos;: %2</source>
        <comment>command line</comment>
        <translation>не удаётся открыть «%1»: %2</translation>
    </message>
    <message>
        <source>GIF pictures are only read</source>
        <comment>command line</comment>
        <translation>изображения GIF можно только читать</translation>
    </message>
    <message>
        <source>Saving drawing</source>
        <comment>saving</comment>
        <translation>Сохранение рисунка</translation>
    </message>
</context>
<context>
    <name>pad::EarlierDialog</name>
    <message>
        <source>Earlier drawings</source>
        <comment>earlier drawings</comment>
        <translation>Прежние рисунки</translation>
    </message>
    <message>
        <source>None was kept so far.</source>
        <comment>earlier drawings</comment>
        <translation>Пока ничего не сохранено.</translation>
    </message>
    <message>
        <source>Bring it back</source>
        <comment>earlier drawings</comment>
        <translation>Вернуть</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>earlier drawings</comment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>today at %1</source>
        <comment>time, in a list and in a sentence; %1: &apos;9:30&apos;</comment>
        <translation>сегодня в %1</translation>
    </message>
    <message>
        <source>yesterday at %1</source>
        <comment>time, in a list and in a sentence; %1: &apos;9:30&apos;</comment>
        <translation>вчера в %1</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>time, in a list and in a sentence; %1: a date, %2: &apos;9:30&apos;</comment>
        <translation>%1 в %2</translation>
    </message>
</context>
<context>
    <name>pad::KeysDialog</name>
    <message>
        <source>Keys</source>
        <comment>keys</comment>
        <translation>Клавиши</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>keys</comment>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Buttons</source>
        <comment>keys; title, of the tool bar&apos;s buttons</comment>
        <translation>Кнопки</translation>
    </message>
</context>
<context>
    <name>pad::PadTools</name>
    <message>
        <source>Fill</source>
        <comment>tool</comment>
        <translation>Заливка</translation>
    </message>
    <message>
        <source>Pick color</source>
        <comment>tool</comment>
        <translation>Пипетка</translation>
    </message>
    <message>
        <source>%1 points</source>
        <comment>tool option</comment>
        <translation>%1 пунктов</translation>
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
        <translation>Меню</translation>
    </message>
    <message>
        <source>Drawing[*] - Korva</source>
        <comment>window title</comment>
        <translation>Рисунок[*] - Korva</translation>
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
        <translation>на вопрос «%1» нет ответа</translation>
    </message>
    <message>
        <source>no picture is named to open</source>
        <comment>replay</comment>
        <translation>не указано, какое изображение открыть</translation>
    </message>
    <message>
        <source>the drawing has no name to be saved under</source>
        <comment>replay</comment>
        <translation>у рисунка нет имени для сохранения</translation>
    </message>
</context>
<context>
    <name>pad::Player</name>
    <message>
        <source>the tool has no option %1</source>
        <comment>replay</comment>
        <translation>у инструмента нет варианта %1</translation>
    </message>
    <message>
        <source>the drawing could not be saved</source>
        <comment>replay</comment>
        <translation>не удалось сохранить рисунок</translation>
    </message>
</context>
<context>
    <name>pad::Preview</name>
    <message>
        <source>Usage: korva-preview [options] PICTURE</source>
        <comment>help</comment>
        <translation>Использование: korva-preview [параметры] PICTURE</translation>
    </message>
    <message>
        <source>Shows a picture to be confirmed or cancelled: prints 900 and exits with 0 when it was
confirmed, prints 902 and exits with 1 when it was cancelled.</source>
        <comment>help</comment>
        <translation>Показывает изображение для подтверждения: если оно подтверждено, выводит 900 и
завершается с кодом 0, если отменено, выводит 902 и завершается с кодом 1.</translation>
    </message>
    <message>
        <source>which picture? korva-preview PICTURE</source>
        <comment>command line</comment>
        <translation>какое изображение? korva-preview PICTURE</translation>
    </message>
</context>
<context>
    <name>pad::PrintDialog</name>
    <message>
        <source>Printer</source>
        <comment>print</comment>
        <translation>Принтер</translation>
    </message>
</context>
<context>
    <name>pad::Recording</name>
    <message>
        <source>a number</source>
        <comment>recording; what a command needs</comment>
        <translation>число</translation>
    </message>
    <message>
        <source>a tool</source>
        <comment>recording; what a command needs</comment>
        <translation>инструмент</translation>
    </message>
    <message>
        <source>a zoom</source>
        <comment>recording; what a command needs</comment>
        <translation>масштаб</translation>
    </message>
    <message>
        <source>a canvas type</source>
        <comment>recording; what a command needs</comment>
        <translation>тип холста</translation>
    </message>
    <message>
        <source>a colour #rrggbb</source>
        <comment>recording; what a command needs</comment>
        <translation>цвет #rrggbb</translation>
    </message>
    <message>
        <source>a key</source>
        <comment>recording; what a command needs</comment>
        <translation>клавиша</translation>
    </message>
    <message>
        <source>a text</source>
        <comment>recording; what a command needs</comment>
        <translation>текст</translation>
    </message>
    <message>
        <source>a file name</source>
        <comment>recording; what a command needs</comment>
        <translation>имя файла</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <comment>recording</comment>
        <translation>неизвестная команда «%1»</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <comment>recording</comment>
        <translation>для «%1» требуется %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2, not &apos;%3&apos;</source>
        <comment>recording</comment>
        <translation>для «%1» требуется %2, а не «%3»</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is too much for &apos;%2&apos;</source>
        <comment>recording</comment>
        <translation>«%1» — лишнее для «%2»</translation>
    </message>
    <message>
        <source>this is not UTF-8 text</source>
        <comment>recording</comment>
        <translation>это не текст в UTF-8</translation>
    </message>
    <message>
        <source>cannot read &apos;%1&apos;: %2</source>
        <comment>recording</comment>
        <translation>не удаётся прочитать «%1»: %2</translation>
    </message>
    <message>
        <source>a blank is missing at &apos;%1&apos;</source>
        <comment>recording</comment>
        <translation>не хватает пробела у «%1»</translation>
    </message>
    <message>
        <source>unknown escape &apos;\%1&apos;</source>
        <comment>recording</comment>
        <translation>неизвестная последовательность «\%1»</translation>
    </message>
    <message>
        <source>the closing quote is missing</source>
        <comment>recording</comment>
        <translation>нет закрывающей кавычки</translation>
    </message>
    <message>
        <source>a number of steps</source>
        <comment>recording; what a command needs</comment>
        <translation>число шагов</translation>
    </message>
</context>
<context>
    <name>pad::Recovery</name>
    <message>
        <source>Older ones are among the earlier drawings.</source>
        <comment>recovery</comment>
        <translation>Более старые — среди прежних рисунков.</translation>
    </message>
    <message>
        <source>Bring it back</source>
        <comment>recovery</comment>
        <translation>Вернуть</translation>
    </message>
    <message>
        <source>Not now</source>
        <comment>recovery</comment>
        <translation>Не сейчас</translation>
    </message>
    <message>
        <source>Save changes to drawing before bringing another one back?</source>
        <comment>recovery</comment>
        <translation>Сохранить изменения рисунка, прежде чем вернуть другой?</translation>
    </message>
    <message>
        <source>No copy of the drawing can be kept: %1</source>
        <comment>recovery</comment>
        <translation>Не удаётся сохранить копию рисунка: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>recovery</comment>
        <translation>ОК</translation>
    </message>
    <message>
        <source>A drawing of %1 was not saved.</source>
        <comment>recovery; %1: &apos;today at 9:30&apos;</comment>
        <translation>Рисунок (%1) не сохранён.</translation>
    </message>
    <message>
        <source>A drawing of %1 on %2 was not saved.</source>
        <comment>recovery; %1: &apos;today at 9:30&apos;, %2: a file</comment>
        <translation>Рисунок (%1) в файле %2 не сохранён.</translation>
    </message>
</context>
<context>
    <name>pad::StatusLine</name>
    <message>
        <source>Tool</source>
        <comment>status line</comment>
        <translation>Инструмент</translation>
    </message>
    <message>
        <source>Picture size</source>
        <comment>status line</comment>
        <translation>Размер изображения</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>status line</comment>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Position</source>
        <comment>status line</comment>
        <translation>Положение</translation>
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
        <translation>Состояние</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>status line, spoken</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Size</source>
        <comment>status line; of what is dragged</comment>
        <translation>Размер</translation>
    </message>
</context>
</TS>
