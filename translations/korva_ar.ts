<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>KORVA_Canvas</name>
    <message>
        <source>Cut</source>
        <comment>2.11.1;MENU</comment>
        <translation>قص</translation>
    </message>
    <message>
        <source>Copy</source>
        <comment>2.11.1;MENU</comment>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>2.11.1;MENU</comment>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>menu of the canvas</comment>
        <translation>رسم</translation>
    </message>
</context>
<context>
    <name>KORVA_ChooseCanvasDlg</name>
    <message>
        <source>32 X 40(stamp)</source>
        <comment>2.11.3;MENU</comment>
        <translation>‎32 X 40‎ (ختم)</translation>
    </message>
    <message>
        <source>200 X 170(normal)</source>
        <comment>2.11.3;MENU</comment>
        <translation>‎200 X 170‎ (عادي)</translation>
    </message>
    <message>
        <source>Canvas Size:</source>
        <comment>2.11.3;DIALOG_CONTEXT</comment>
        <translation>حجم اللوحة:</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.3;SOFTKEY_2BUTTON</comment>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.3;SOFTKEY_2BUTTON</comment>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>KORVA_ColorPicker</name>
    <message>
        <source>Red</source>
        <comment>colour channel</comment>
        <translation>أحمر</translation>
    </message>
    <message>
        <source>Green</source>
        <comment>colour channel</comment>
        <translation>أخضر</translation>
    </message>
    <message>
        <source>Blue</source>
        <comment>colour channel</comment>
        <translation>أزرق</translation>
    </message>
    <message>
        <source>Color</source>
        <comment>2.11.6;DIALOG_TITLE</comment>
        <translation>اللون</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.6;SOFTKEY_2BUTTON</comment>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.6;SOFTKEY_2BUTTON</comment>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>KORVA_EditCanvas</name>
    <message>
        <source>Save changes to drawing before opening?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>هل تريد حفظ تغييرات الرسم قبل الفتح؟</translation>
    </message>
    <message>
        <source>Save changes to drawing before choosing canvas?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>هل تريد حفظ تغييرات الرسم قبل اختيار اللوحة؟</translation>
    </message>
    <message>
        <source>Save changes to drawing before creating?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>هل تريد حفظ تغييرات الرسم قبل إنشاء رسم جديد؟</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>2.11.2.3;SOFTKEY_2BUTTON</comment>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <comment>2.11.2.3;SOFTKEY_2BUTTON</comment>
        <translation>لا</translation>
    </message>
    <message>
        <source>The image is oversize</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>الصورة كبيرة جدًا</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>تعذّر فتح الملف</translation>
    </message>
    <message>
        <source>This file can not be opened.</source>
        <comment>4.4.4.2;DIALOG_ICON_50_WARP</comment>
        <translation>لا يمكن فتح هذا الملف.</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>4.4.4.2;SOFTKEY_1BUTTON</comment>
        <translation>موافق</translation>
    </message>
    <message>
        <source>open buffer fail!</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>تعذّر فتح الصورة المُمرَّرة!</translation>
    </message>
    <message>
        <source>Insert stamp</source>
        <comment>PICK_DIALOG;TITLE</comment>
        <translation>إدراج ختم</translation>
    </message>
    <message>
        <source>Insert</source>
        <comment>PICK_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>إدراج</translation>
    </message>
    <message>
        <source>Saved Successfully</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>تم الحفظ بنجاح</translation>
    </message>
    <message>
        <source>Saved Failed</source>
        <comment>2.11.2.10;DIALOG_ICON_50</comment>
        <translation>فشل الحفظ</translation>
    </message>
    <message>
        <source>Delete drawing?</source>
        <comment>2.11.2.1;DIALOG_ICON_50</comment>
        <translation>هل تريد حذف الرسم؟</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.2.1;SOFTKEY_2BUTTON</comment>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.2.1;SOFTKEY_2BUTTON</comment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Fit to page</source>
        <comment>2.11.1;MENU</comment>
        <translation>ملاءمة</translation>
    </message>
    <message>
        <source>Tool</source>
        <comment>tool bar</comment>
        <translation>الأداة</translation>
    </message>
    <message>
        <source>Tool option</source>
        <comment>tool bar</comment>
        <translation>خيار الأداة</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>tool bar</comment>
        <translation>التكبير</translation>
    </message>
    <message>
        <source>Color</source>
        <comment>tool bar</comment>
        <translation>اللون</translation>
    </message>
    <message>
        <source>Select</source>
        <comment>tool</comment>
        <translation>تحديد</translation>
    </message>
    <message>
        <source>Eraser</source>
        <comment>tool</comment>
        <translation>ممحاة</translation>
    </message>
    <message>
        <source>Line</source>
        <comment>tool</comment>
        <translation>خط</translation>
    </message>
    <message>
        <source>Pencil</source>
        <comment>tool</comment>
        <translation>قلم رصاص</translation>
    </message>
    <message>
        <source>Text</source>
        <comment>tool</comment>
        <translation>نص</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <comment>tool</comment>
        <translation>مستطيل</translation>
    </message>
    <message>
        <source>Hand</source>
        <comment>tool</comment>
        <translation>يد</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <comment>tool</comment>
        <translation>بيضوي</translation>
    </message>
    <message>
        <source>Small</source>
        <comment>tool option</comment>
        <translation>صغير</translation>
    </message>
    <message>
        <source>Medium</source>
        <comment>tool option</comment>
        <translation>متوسط</translation>
    </message>
    <message>
        <source>Large</source>
        <comment>tool option</comment>
        <translation>كبير</translation>
    </message>
    <message>
        <source>Select area</source>
        <comment>tool option</comment>
        <translation>تحديد منطقة</translation>
    </message>
    <message>
        <source>Move view</source>
        <comment>tool option</comment>
        <translation>تحريك العرض</translation>
    </message>
    <message>
        <source>7 point</source>
        <comment>tool option</comment>
        <translation>7 نقاط</translation>
    </message>
    <message>
        <source>9 point</source>
        <comment>tool option</comment>
        <translation>9 نقاط</translation>
    </message>
    <message>
        <source>11 point</source>
        <comment>tool option</comment>
        <translation>11 نقطة</translation>
    </message>
    <message>
        <source>Outline</source>
        <comment>tool option</comment>
        <translation>إطار فقط</translation>
    </message>
    <message>
        <source>Filled</source>
        <comment>tool option</comment>
        <translation>مملوء</translation>
    </message>
    <message>
        <source>Opening picture</source>
        <comment>WAIT_BOX</comment>
        <translation>جارٍ فتح الصورة</translation>
    </message>
    <message>
        <source>Drawing editor</source>
        <comment>screen reader</comment>
        <translation>محرّر الرسم</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>screen reader</comment>
        <translation>رسم</translation>
    </message>
    <message>
        <source>Floating piece</source>
        <comment>screen reader</comment>
        <translation>قطعة عائمة</translation>
    </message>
    <message>
        <source>Zoom %1 %</source>
        <comment>screen reader</comment>
        <translation>التكبير %1٪</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <comment>screen reader</comment>
        <translation>%1 في %2 بكسل</translation>
    </message>
    <message>
        <source>Pen down at %1, %2</source>
        <comment>screen reader</comment>
        <translation>القلم مُنزَل عند %1، %2</translation>
    </message>
    <message>
        <source>Pen at %1, %2</source>
        <comment>screen reader</comment>
        <translation>القلم عند %1، %2</translation>
    </message>
    <message>
        <source>A text is open</source>
        <comment>screen reader</comment>
        <translation>يوجد نص مفتوح</translation>
    </message>
    <message>
        <source>A piece of %1 by %2 pixels floats at %3, %4</source>
        <comment>screen reader</comment>
        <translation>قطعة بحجم %1 في %2 بكسل تعوم عند %3، %4</translation>
    </message>
    <message>
        <source>red</source>
        <comment>color</comment>
        <translation>أحمر</translation>
    </message>
    <message>
        <source>orange</source>
        <comment>color</comment>
        <translation>برتقالي</translation>
    </message>
    <message>
        <source>yellow</source>
        <comment>color</comment>
        <translation>أصفر</translation>
    </message>
    <message>
        <source>green</source>
        <comment>color</comment>
        <translation>أخضر</translation>
    </message>
    <message>
        <source>turquoise</source>
        <comment>color</comment>
        <translation>فيروزي</translation>
    </message>
    <message>
        <source>blue</source>
        <comment>color</comment>
        <translation>أزرق</translation>
    </message>
    <message>
        <source>violet</source>
        <comment>color</comment>
        <translation>بنفسجي</translation>
    </message>
    <message>
        <source>pink</source>
        <comment>color</comment>
        <translation>وردي</translation>
    </message>
    <message>
        <source>black</source>
        <comment>color</comment>
        <translation>أسود</translation>
    </message>
    <message>
        <source>gray</source>
        <comment>color</comment>
        <translation>رمادي</translation>
    </message>
    <message>
        <source>white</source>
        <comment>color</comment>
        <translation>أبيض</translation>
    </message>
    <message>
        <source>brown</source>
        <comment>color</comment>
        <translation>بنّي</translation>
    </message>
    <message>
        <source>Bold</source>
        <comment>tool option</comment>
        <translation>عريض</translation>
    </message>
    <message>
        <source>Thin edge</source>
        <comment>tool option; around what is filled</comment>
        <translation>حافة رفيعة</translation>
    </message>
    <message>
        <source>Thick edge</source>
        <comment>tool option; around what is filled</comment>
        <translation>حافة سميكة</translation>
    </message>
</context>
<context>
    <name>KORVA_ImageView_Dialog</name>
    <message>
        <source>Cancel</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Confirm</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>تأكيد</translation>
    </message>
    <message>
        <source>The image is oversize</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>الصورة كبيرة جدًا</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>تعذّر فتح الملف</translation>
    </message>
    <message>
        <source>Picture load error.</source>
        <comment>2.16.5.9.4;FORM_CONTEXT_WITH_SCROLL_ICON1_20_WARP2</comment>
        <translation>تعذّر تحميل الصورة.</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.16.5.9.4;CST_5BUTTON</comment>
        <translation>موافق</translation>
    </message>
</context>
<context>
    <name>KORVA_PasteLabel</name>
    <message>
        <source>Copy</source>
        <comment>2.11.1;MENU</comment>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Cut</source>
        <comment>2.11.1;MENU</comment>
        <translation>قص</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>2.11.1;MENU</comment>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Floating piece</source>
        <comment>menu of the piece</comment>
        <translation>قطعة عائمة</translation>
    </message>
    <message>
        <source>Turn left</source>
        <comment>menu of the piece</comment>
        <translation>تدوير لليسار</translation>
    </message>
    <message>
        <source>Turn right</source>
        <comment>menu of the piece</comment>
        <translation>تدوير لليمين</translation>
    </message>
    <message>
        <source>Flip</source>
        <comment>menu of the piece: left and right change places</comment>
        <translation>قلب</translation>
    </message>
    <message>
        <source>Double</source>
        <comment>menu of the piece: twice as wide and high</comment>
        <translation>مضاعفة</translation>
    </message>
    <message>
        <source>Halve</source>
        <comment>menu of the piece: half as wide and high</comment>
        <translation>تنصيف</translation>
    </message>
    <message>
        <source>White is clear</source>
        <comment>menu of the piece: a switch</comment>
        <translation>الأبيض شفاف</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>menu of the piece</comment>
        <translation>حذف</translation>
    </message>
</context>
<context>
    <name>KORVA_Preview_Dialog</name>
    <message>
        <source>Cancel</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Confirm</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>تأكيد</translation>
    </message>
</context>
<context>
    <name>UTIL_FolderDialog</name>
    <message>
        <source>Up</source>
        <comment>FOLDER_DIALOG;BUTTON</comment>
        <translation>لأعلى</translation>
    </message>
    <message>
        <source>Order</source>
        <comment>FOLDER_DIALOG;BUTTON</comment>
        <translation>الترتيب</translation>
    </message>
    <message>
        <source>By name</source>
        <comment>FOLDER_DIALOG;LIST</comment>
        <translation>حسب الاسم</translation>
    </message>
    <message>
        <source>Newest first</source>
        <comment>FOLDER_DIALOG;LIST</comment>
        <translation>الأحدث أولًا</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>FOLDER_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>UTIL_MessageBox</name>
    <message>
        <source>Cancel</source>
        <comment>message box</comment>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>UTIL_PickDialog</name>
    <message>
        <source>Open picture</source>
        <comment>PICK_DIALOG;TITLE</comment>
        <translation>فتح صورة</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>PICK_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>فتح</translation>
    </message>
</context>
<context>
    <name>UTIL_PictureView</name>
    <message>
        <source>No pictures here</source>
        <comment>FOLDER_DIALOG;CONTEXT</comment>
        <translation>لا توجد صور هنا</translation>
    </message>
    <message>
        <source>This folder cannot be read</source>
        <comment>FOLDER_DIALOG;CONTEXT</comment>
        <translation>لا يمكن قراءة هذا المجلد</translation>
    </message>
</context>
<context>
    <name>UTIL_SaveDialog</name>
    <message>
        <source>Save picture as</source>
        <comment>SAVE_DIALOG;TITLE</comment>
        <translation>حفظ الصورة باسم</translation>
    </message>
    <message>
        <source>Save</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>File name</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>اسم الملف</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Replace</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>استبدال</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <comment>SAVE_DIALOG;DIALOG_ICON_50_WARP</comment>
        <translation>هل تريد استبدال %1؟</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>رسم</translation>
    </message>
    <message>
        <source>Drawing %1</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>رسم %1</translation>
    </message>
</context>
<context>
    <name>UTIL_ScrollBar</name>
    <message>
        <source>Scroll sideways</source>
        <comment>screen reader</comment>
        <translation>التمرير الأفقي</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <comment>screen reader</comment>
        <translation>التمرير العمودي</translation>
    </message>
</context>
<context>
    <name>UTIL_Veil</name>
    <message>
        <source>Dimmed for a dialog</source>
        <comment>screen reader</comment>
        <translation>معتَّم لظهور مربع حوار</translation>
    </message>
</context>
<context>
    <name>UTIL_WaitBox</name>
    <message>
        <source>Cancel</source>
        <comment>WAIT_BOX;SOFTKEY_1BUTTON</comment>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>desktop</name>
    <message>
        <source>Korva Pad</source>
        <comment>Name</comment>
        <translation>دفتر رسم Korva</translation>
    </message>
    <message>
        <source>Drawing Pad</source>
        <comment>GenericName</comment>
        <translation>دفتر رسم</translation>
    </message>
    <message>
        <source>Draw and edit small pictures</source>
        <comment>Comment</comment>
        <translation>ارسم صورًا صغيرة وحرّرها</translation>
    </message>
    <message>
        <source>draw;paint;picture;bitmap;sketch;</source>
        <comment>Keywords; each ends with a semicolon</comment>
        <translation>رسم;تلوين;صورة;صورة نقطية;مسودة;</translation>
    </message>
    <message>
        <source>A drawing pad for small touch screens, which works as well with a mouse: pencil, line, rectangle, ellipse, eraser, text and a selection that can be moved, stretched and turned.</source>
        <comment>description</comment>
        <translation>دفتر رسم للشاشات الصغيرة التي تعمل باللمس، ويعمل بالفأرة بالسهولة نفسها: قلم رصاص وخط ومستطيل وشكل بيضوي وممحاة ونص وتحديد يمكن تحريكه ومطّه وتدويره.</translation>
    </message>
    <message>
        <source>It reads PNG, GIF, JPEG, BMP and WBMP pictures and writes PNG, JPEG and BMP.</source>
        <comment>description</comment>
        <translation>يقرأ صور PNG وGIF وJPEG وBMP وWBMP ويكتب PNG وJPEG وBMP.</translation>
    </message>
</context>
<context>
    <name>pad::ColorPopup</name>
    <message>
        <source>Colors</source>
        <comment>color pop-up</comment>
        <translation>الألوان</translation>
    </message>
    <message>
        <source>Value of the color</source>
        <comment>color pop-up</comment>
        <translation>قيمة اللون</translation>
    </message>
    <message>
        <source>#rrggbb, or red, green and blue from 0 to 255</source>
        <comment>color pop-up</comment>
        <translation>‎#rrggbb أو الأحمر والأخضر والأزرق من 0 إلى 255</translation>
    </message>
    <message>
        <source>More ...</source>
        <comment>color pop-up; opens a dialog</comment>
        <translation>المزيد ...</translation>
    </message>
</context>
<context>
    <name>pad::ColorsDialog</name>
    <message>
        <source>Plain</source>
        <comment>few colors</comment>
        <translation>بلا نقاط</translation>
    </message>
    <message>
        <source>Dotted</source>
        <comment>few colors</comment>
        <translation>بنقاط</translation>
    </message>
</context>
<context>
    <name>pad::CommandLine</name>
    <message>
        <source>--scale takes a number from 1 to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>الخيار --scale يقبل عددًا من 1 إلى %1، لا «%2»</translation>
    </message>
    <message>
        <source>show every pixel N x N (default: as last time, or what suits the screen)</source>
        <comment>help</comment>
        <translation>عرض كل بكسل بحجم N x N (الافتراضي: كآخر مرة، أو ما يناسب الشاشة)</translation>
    </message>
    <message>
        <source>speak this language, like de or pt_BR</source>
        <comment>help</comment>
        <translation>استخدام هذه اللغة، مثل de أو pt_BR</translation>
    </message>
    <message>
        <source>play a recording; no pointer is needed</source>
        <comment>help</comment>
        <translation>تشغيل تسجيل؛ لا حاجة إلى مؤشر</translation>
    </message>
    <message>
        <source>write a recording of what is drawn</source>
        <comment>help</comment>
        <translation>كتابة تسجيل لما يُرسم</translation>
    </message>
    <message>
        <source>save the drawing after the replay, then exit</source>
        <comment>help</comment>
        <translation>حفظ الرسم بعد تشغيل التسجيل ثم الخروج</translation>
    </message>
    <message>
        <source>write the window as PNG, then exit</source>
        <comment>help</comment>
        <translation>كتابة النافذة بصيغة PNG ثم الخروج</translation>
    </message>
    <message>
        <source>keep no copy of what is not saved, and offer none</source>
        <comment>help</comment>
        <translation>عدم الاحتفاظ بنسخة مما لم يُحفظ وعدم عرض استعادتها</translation>
    </message>
    <message>
        <source>show this text</source>
        <comment>help</comment>
        <translation>عرض هذا النص</translation>
    </message>
    <message>
        <source>show the version</source>
        <comment>help</comment>
        <translation>عرض الإصدار</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <comment>command line</comment>
        <translation>الخيار %1 مذكور مرتين</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <comment>command line</comment>
        <translation>الخيار %1 لا يأخذ قيمة</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; (--help lists them)</source>
        <comment>command line</comment>
        <translation>خيار غير معروف «%1» (--help يسرد الخيارات)</translation>
    </message>
    <message>
        <source>%1 needs a value: %1 %2</source>
        <comment>command line</comment>
        <translation>الخيار %1 يحتاج إلى قيمة: %1 %2</translation>
    </message>
    <message>
        <source>one picture at a time: &apos;%1&apos; and &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>صورة واحدة في كل مرة: «%1» و«%2»</translation>
    </message>
    <message>
        <source>the picture&apos;s name is empty</source>
        <comment>command line</comment>
        <translation>اسم الصورة فارغ</translation>
    </message>
    <message>
        <source>Usage: korva-pad [options] [picture]</source>
        <comment>help</comment>
        <translation>الاستخدام: korva-pad [خيارات] [صورة]</translation>
    </message>
    <message>
        <source>A drawing pad: draws on a new canvas or on the picture given.</source>
        <comment>help</comment>
        <translation>دفتر رسم: يرسم على لوحة جديدة أو على الصورة المعطاة.</translation>
    </message>
    <message>
        <source>Options:</source>
        <comment>help</comment>
        <translation>الخيارات:</translation>
    </message>
    <message>
        <source>--scale %1 does not fit a screen of %2 x %3; taking %4</source>
        <comment>command line</comment>
        <translation>القيمة --scale %1 لا تناسب شاشة مقاسها %2 x %3؛ ستُستخدم %4</translation>
    </message>
    <message>
        <source>there is no language &apos;%1&apos;; taking English (known: %2)</source>
        <comment>command line</comment>
        <translation>لا توجد لغة «%1»؛ ستُستخدم الإنجليزية (المعروفة: %2)</translation>
    </message>
    <message>
        <source>--undo-steps takes a number from 1 to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>الخيار --undo-steps يقبل عددًا من 1 إلى %1، لا «%2»</translation>
    </message>
    <message>
        <source>--working-size takes WxH, up to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>يأخذ ‎--working-size العرضxالارتفاع حتى %1، وليس «%2»</translation>
    </message>
    <message>
        <source>--working-depth takes 16 or 24, not &apos;%1&apos;</source>
        <comment>command line</comment>
        <translation>يأخذ ‎--working-depth القيمة 16 أو 24، وليس «%1»</translation>
    </message>
    <message>
        <source>how many steps can be undone (default: 50)</source>
        <comment>help</comment>
        <translation>عدد الخطوات التي يمكن التراجع عنها (الافتراضي: 50)</translation>
    </message>
    <message>
        <source>fit opened pictures into this size (default: 352x288)</source>
        <comment>help</comment>
        <translation>ملاءمة الصور المفتوحة لهذا الحجم (الافتراضي: 352x288)</translation>
    </message>
    <message>
        <source>the colour depth of opened pictures (default: 16)</source>
        <comment>help</comment>
        <translation>عمق ألوان الصور المفتوحة (الافتراضي: 16)</translation>
    </message>
</context>
<context>
    <name>pad::Commands</name>
    <message>
        <source>&amp;New ...</source>
        <comment>menu</comment>
        <translation>جديد(&amp;N) ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <comment>menu</comment>
        <translation>فتح(&amp;O) ...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <comment>menu</comment>
        <translation>حفظ(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;as ...</source>
        <comment>menu</comment>
        <translation>حفظ باسم(&amp;A) ...</translation>
    </message>
    <message>
        <source>&amp;Keys ...</source>
        <comment>menu</comment>
        <translation>المفاتيح(&amp;K) ...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <comment>menu</comment>
        <translation>إنهاء(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Picture</source>
        <comment>menu</comment>
        <translation>الصورة(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Insert stamp ...</source>
        <comment>menu</comment>
        <translation>إدراج ختم(&amp;I) ...</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <comment>menu</comment>
        <translation>مسح الكل(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Earlier drawings ...</source>
        <comment>menu</comment>
        <translation>رسوم سابقة(&amp;E) ...</translation>
    </message>
    <message>
        <source>&amp;Delete picture ...</source>
        <comment>menu</comment>
        <translation>حذف الصورة(&amp;D) ...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <comment>menu</comment>
        <translation>تحرير(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <comment>menu</comment>
        <translation>تراجع(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <comment>menu</comment>
        <translation>إعادة(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <comment>menu</comment>
        <translation>قص(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <comment>menu</comment>
        <translation>نسخ(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <comment>menu</comment>
        <translation>لصق(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <comment>menu</comment>
        <translation>حذف(&amp;D)</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <comment>menu</comment>
        <translation>تحديد الكل(&amp;A)</translation>
    </message>
    <message>
        <source>Cop&amp;y drawing</source>
        <comment>menu</comment>
        <translation>نسخ الرسم(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <comment>menu</comment>
        <translation>الأداة(&amp;T)</translation>
    </message>
    <message>
        <source>Pe&amp;ncil</source>
        <comment>menu</comment>
        <translation>قلم رصاص(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <comment>menu</comment>
        <translation>خط(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <comment>menu</comment>
        <translation>مستطيل(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Ellipse</source>
        <comment>menu</comment>
        <translation>بيضوي(&amp;E)</translation>
    </message>
    <message>
        <source>Er&amp;aser</source>
        <comment>menu</comment>
        <translation>ممحاة(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <comment>menu</comment>
        <translation>نص(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <comment>menu</comment>
        <translation>تحديد(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Hand</source>
        <comment>menu</comment>
        <translation>يد(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Color ...</source>
        <comment>menu</comment>
        <translation>اللون(&amp;C) ...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <comment>menu</comment>
        <translation>عرض(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <comment>menu</comment>
        <translation>تكبير(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <comment>menu</comment>
        <translation>تصغير(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Real size</source>
        <comment>menu</comment>
        <translation>الحجم الفعلي(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Fit to page</source>
        <comment>menu</comment>
        <translation>ملاءمة الصفحة(&amp;F)</translation>
    </message>
    <message>
        <source>Full s&amp;creen</source>
        <comment>menu</comment>
        <translation>ملء الشاشة(&amp;C)</translation>
    </message>
    <message>
        <source>First option</source>
        <comment>menu</comment>
        <translation>الخيار الأول</translation>
    </message>
    <message>
        <source>Second option</source>
        <comment>menu</comment>
        <translation>الخيار الثاني</translation>
    </message>
    <message>
        <source>Third option</source>
        <comment>menu</comment>
        <translation>الخيار الثالث</translation>
    </message>
    <message>
        <source>Menu</source>
        <comment>keys</comment>
        <translation>القائمة</translation>
    </message>
    <message>
        <source>Arrows</source>
        <comment>keys</comment>
        <translation>الأسهم</translation>
    </message>
    <message>
        <source>Move pen, piece</source>
        <comment>keys</comment>
        <translation>تحريك القلم أو القطعة</translation>
    </message>
    <message>
        <source>Shift+arrows</source>
        <comment>keys</comment>
        <translation>Shift+الأسهم</translation>
    </message>
    <message>
        <source>... by 10 pixels</source>
        <comment>keys</comment>
        <translation>... بمقدار 10 بكسل</translation>
    </message>
    <message>
        <source>Draw while held</source>
        <comment>keys</comment>
        <translation>الرسم أثناء الضغط</translation>
    </message>
    <message>
        <source>Pen down, up</source>
        <comment>keys</comment>
        <translation>إنزال القلم ورفعه</translation>
    </message>
    <message>
        <source>Put piece down</source>
        <comment>keys</comment>
        <translation>وضع القطعة</translation>
    </message>
    <message>
        <source>Alt+arrows</source>
        <comment>keys</comment>
        <translation>Alt+الأسهم</translation>
    </message>
    <message>
        <source>Stretch piece</source>
        <comment>keys</comment>
        <translation>مدّ القطعة</translation>
    </message>
    <message>
        <source>Turn piece</source>
        <comment>keys</comment>
        <translation>تدوير القطعة</translation>
    </message>
    <message>
        <source>Drop piece</source>
        <comment>keys</comment>
        <translation>إسقاط القطعة</translation>
    </message>
    <message>
        <source>End text</source>
        <comment>keys</comment>
        <translation>إنهاء النص</translation>
    </message>
    <message>
        <source>F&amp;inger pans</source>
        <comment>menu</comment>
        <translation>الإصبع يحرّك(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Fill</source>
        <comment>menu</comment>
        <translation>تعبئة(&amp;F)</translation>
    </message>
    <message>
        <source>Pic&amp;k color</source>
        <comment>menu</comment>
        <translation>التقاط لون(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;New from picture ...</source>
        <comment>menu</comment>
        <translation>جديد من صورة(&amp;F) ...</translation>
    </message>
    <message>
        <source>Save for a &amp;message ...</source>
        <comment>menu</comment>
        <translation>حفظ لرسالة(&amp;M) ...</translation>
    </message>
    <message>
        <source>Save in &amp;few colors ...</source>
        <comment>menu</comment>
        <translation>حفظ بألوان قليلة(&amp;C) ...</translation>
    </message>
    <message>
        <source>&amp;Print ...</source>
        <comment>menu</comment>
        <translation>طباعة(&amp;P) ...</translation>
    </message>
</context>
<context>
    <name>pad::Copies</name>
    <message>
        <source>The printer does not take it.</source>
        <comment>print</comment>
        <translation>الطابعة لا تقبل الرسم.</translation>
    </message>
</context>
<context>
    <name>pad::CopyDialog</name>
    <message>
        <source>Save</source>
        <comment>copy</comment>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>copy</comment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>One moment ...</source>
        <comment>copy</comment>
        <translation>لحظة ...</translation>
    </message>
    <message>
        <source>The picture does not fit.</source>
        <comment>copy</comment>
        <translation>الصورة أكبر من الحد.</translation>
    </message>
</context>
<context>
    <name>pad::Display</name>
    <message>
        <source>there is no display</source>
        <comment>display</comment>
        <translation>لا توجد شاشة عرض</translation>
    </message>
    <message>
        <source>cannot open display %1</source>
        <comment>display</comment>
        <translation>تعذّر فتح شاشة العرض %1</translation>
    </message>
    <message>
        <source>there is no screen</source>
        <comment>display</comment>
        <translation>لا توجد شاشة</translation>
    </message>
    <message>
        <source>cannot show anything on &apos;%1&apos;: %2</source>
        <comment>display</comment>
        <translation>لا يمكن عرض أي شيء على «%1»: %2</translation>
    </message>
    <message>
        <source>%1: the toolkit&apos;s plugin for Wayland (%2) is not installed</source>
        <comment>display; %1: its name, %2: a package</comment>
        <translation>%1: ملحق Wayland لمكتبة الواجهة (%2) غير مثبَّت</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <comment>display; names of displays</comment>
        <translation>%1 أو %2</translation>
    </message>
</context>
<context>
    <name>pad::Documents</name>
    <message>
        <source>No copy of the drawing can be kept. Give it up?</source>
        <comment>changes</comment>
        <translation>تعذّر الاحتفاظ بنسخة من الرسم. هل تريد تجاهله؟</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>changes</comment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Give it up</source>
        <comment>changes</comment>
        <translation>تجاهل الرسم</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>changes</comment>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <comment>changes</comment>
        <translation>لا</translation>
    </message>
    <message>
        <source>Save changes to drawing before closing?</source>
        <comment>changes</comment>
        <translation>هل تريد حفظ تغييرات الرسم قبل الإغلاق؟</translation>
    </message>
    <message>
        <source>Black and white</source>
        <comment>canvas type</comment>
        <translation>أبيض وأسود</translation>
    </message>
    <message numerus="yes">
        <source>%Ln colors</source>
        <comment>canvas type</comment>
        <translation>
            <numerusform>%Ln لون</numerusform>
            <numerusform>لون واحد</numerusform>
            <numerusform>لونان</numerusform>
            <numerusform>%Ln ألوان</numerusform>
            <numerusform>%Ln لونًا</numerusform>
            <numerusform>%Ln لون</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>canvas type</comment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>How many colors?</source>
        <comment>canvas type</comment>
        <translation>كم عدد الألوان؟</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>saving</comment>
        <translation>لم يُحفظ: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>saving</comment>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Save changes to drawing before creating?</source>
        <comment>changes</comment>
        <translation>هل تريد حفظ تغييرات الرسم قبل إنشاء رسم جديد؟</translation>
    </message>
    <message>
        <source>Save changes to drawing before opening?</source>
        <comment>changes</comment>
        <translation>هل تريد حفظ تغييرات الرسم قبل الفتح؟</translation>
    </message>
    <message>
        <source>%1 was changed since it was opened: replacing it would lose that.</source>
        <comment>saving</comment>
        <translation>تغيّر %1 منذ فتحه، واستبداله يُفقد هذا التغيير.</translation>
    </message>
    <message>
        <source>Save as new</source>
        <comment>saving</comment>
        <translation>حفظ كملف جديد</translation>
    </message>
    <message>
        <source>Replace</source>
        <comment>saving</comment>
        <translation>استبدال</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>saving</comment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>deleting</comment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Move %1 to the trash?</source>
        <comment>deleting</comment>
        <translation>هل تريد نقل %1 إلى المهملات؟</translation>
    </message>
    <message>
        <source>To the trash</source>
        <comment>deleting</comment>
        <translation>إلى المهملات</translation>
    </message>
    <message>
        <source>There is no trash for %1. Delete it for good?</source>
        <comment>deleting</comment>
        <translation>لا توجد سلة مهملات لأجل %1. هل تريد حذفه نهائيًا؟</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>deleting</comment>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Not deleted: %1</source>
        <comment>deleting</comment>
        <translation>لم يُحذف: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>deleting</comment>
        <translation>موافق</translation>
    </message>
    <message>
        <source>%1 pictures can only be opened: the drawing of %2 pixels needs a new file.</source>
        <comment>saving; %1: &apos;GIF&apos;, %2: &apos;300 × 200&apos;</comment>
        <translation>يمكن فتح صور %1 فقط: يحتاج الرسم ذو %2 بكسل إلى ملف جديد.</translation>
    </message>
    <message>
        <source>%1 has %2 pixels and the drawing %3: replacing it would lose the rest.</source>
        <comment>saving; %1: a file, %2 and %3: &apos;300 × 200&apos;</comment>
        <translation>في %1 عدد %2 بكسل وفي الرسم %3: الاستبدال يُفقد الباقي.</translation>
    </message>
    <message>
        <source>%1 has more colors than the drawing of %2 pixels: replacing it would lose them.</source>
        <comment>saving; %1: a file, %2: &apos;300 × 200&apos;</comment>
        <translation>ألوان %1 أكثر من ألوان الرسم ذي %2 بكسل: الاستبدال يُفقد هذه الألوان.</translation>
    </message>
    <message>
        <source>New from picture</source>
        <comment>pick dialog</comment>
        <translation>جديد من صورة</translation>
    </message>
    <message>
        <source>%1 was saved: %2</source>
        <comment>saving; %1: a file, %2: &apos;29.6 kB&apos;</comment>
        <translation>حُفظ %1: %2</translation>
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
        <translation>القرص ممتلئ.</translation>
    </message>
    <message>
        <source>No permission to write in %1.</source>
        <comment>saving</comment>
        <translation>لا إذن بالكتابة في %1.</translation>
    </message>
    <message>
        <source>%1 is on a disk that can only be read.</source>
        <comment>saving</comment>
        <translation>يقع %1 على قرص للقراءة فقط.</translation>
    </message>
    <message>
        <source>The disk reports an error.</source>
        <comment>saving</comment>
        <translation>أبلغ القرص عن خطأ.</translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <comment>saving</comment>
        <translation>المجلد %1 غير موجود.</translation>
    </message>
    <message>
        <source>There is a folder of this name.</source>
        <comment>saving</comment>
        <translation>يوجد مجلد بهذا الاسم.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <comment>saving</comment>
        <translation>الاسم طويل جدًا.</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2</source>
        <comment>command line</comment>
        <translation>تعذّرت كتابة «%1»: %2</translation>
    </message>
    <message>
        <source>cannot open &apos;%1&apos;: %2</source>
        <comment>command line</comment>
        <translation>تعذّر فتح «%1»: %2</translation>
    </message>
    <message>
        <source>GIF pictures are only read</source>
        <comment>command line</comment>
        <translation>صور GIF للقراءة فقط</translation>
    </message>
    <message>
        <source>Saving drawing</source>
        <comment>saving</comment>
        <translation>جارٍ حفظ الرسم</translation>
    </message>
</context>
<context>
    <name>pad::EarlierDialog</name>
    <message>
        <source>Earlier drawings</source>
        <comment>earlier drawings</comment>
        <translation>رسوم سابقة</translation>
    </message>
    <message>
        <source>None was kept so far.</source>
        <comment>earlier drawings</comment>
        <translation>لم يُحتفظ بأي رسم حتى الآن.</translation>
    </message>
    <message>
        <source>Bring it back</source>
        <comment>earlier drawings</comment>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>earlier drawings</comment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>today at %1</source>
        <comment>time, in a list and in a sentence; %1: &apos;9:30&apos;</comment>
        <translation>اليوم %1</translation>
    </message>
    <message>
        <source>yesterday at %1</source>
        <comment>time, in a list and in a sentence; %1: &apos;9:30&apos;</comment>
        <translation>أمس %1</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>time, in a list and in a sentence; %1: a date, %2: &apos;9:30&apos;</comment>
        <translation>%1 ‏%2</translation>
    </message>
</context>
<context>
    <name>pad::KeysDialog</name>
    <message>
        <source>Keys</source>
        <comment>keys</comment>
        <translation>المفاتيح</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>keys</comment>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Buttons</source>
        <comment>keys; title, of the tool bar&apos;s buttons</comment>
        <translation>الأزرار</translation>
    </message>
</context>
<context>
    <name>pad::PadTools</name>
    <message>
        <source>Fill</source>
        <comment>tool</comment>
        <translation>تعبئة</translation>
    </message>
    <message>
        <source>Pick color</source>
        <comment>tool</comment>
        <translation>التقاط لون</translation>
    </message>
    <message>
        <source>%1 points</source>
        <comment>tool option</comment>
        <translation>%1 نقطة</translation>
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
        <translation>القائمة</translation>
    </message>
    <message>
        <source>Drawing[*] - Korva</source>
        <comment>window title</comment>
        <translation>رسم[*] - Korva</translation>
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
        <translation>لا جواب للسؤال «%1»</translation>
    </message>
    <message>
        <source>no picture is named to open</source>
        <comment>replay</comment>
        <translation>لم تُذكر صورة لفتحها</translation>
    </message>
    <message>
        <source>the drawing has no name to be saved under</source>
        <comment>replay</comment>
        <translation>لا اسم للرسم ليُحفظ به</translation>
    </message>
</context>
<context>
    <name>pad::Player</name>
    <message>
        <source>the tool has no option %1</source>
        <comment>replay</comment>
        <translation>ليس للأداة الخيار %1</translation>
    </message>
    <message>
        <source>the drawing could not be saved</source>
        <comment>replay</comment>
        <translation>تعذّر حفظ الرسم</translation>
    </message>
</context>
<context>
    <name>pad::Preview</name>
    <message>
        <source>Usage: korva-preview [options] PICTURE</source>
        <comment>help</comment>
        <translation>الاستخدام: korva-preview [خيارات] PICTURE</translation>
    </message>
    <message>
        <source>Shows a picture to be confirmed or cancelled: prints 900 and exits with 0 when it was
confirmed, prints 902 and exits with 1 when it was cancelled.</source>
        <comment>help</comment>
        <translation>يعرض صورة لتأكيدها أو إلغائها: يطبع 900 ويخرج بالقيمة 0 عند تأكيدها،
ويطبع 902 ويخرج بالقيمة 1 عند إلغائها.</translation>
    </message>
    <message>
        <source>which picture? korva-preview PICTURE</source>
        <comment>command line</comment>
        <translation>أي صورة؟ korva-preview PICTURE</translation>
    </message>
</context>
<context>
    <name>pad::PrintDialog</name>
    <message>
        <source>Printer</source>
        <comment>print</comment>
        <translation>الطابعة</translation>
    </message>
</context>
<context>
    <name>pad::Recording</name>
    <message>
        <source>a number</source>
        <comment>recording; what a command needs</comment>
        <translation>عدد</translation>
    </message>
    <message>
        <source>a tool</source>
        <comment>recording; what a command needs</comment>
        <translation>أداة</translation>
    </message>
    <message>
        <source>a zoom</source>
        <comment>recording; what a command needs</comment>
        <translation>مقدار تكبير</translation>
    </message>
    <message>
        <source>a canvas type</source>
        <comment>recording; what a command needs</comment>
        <translation>نوع لوحة</translation>
    </message>
    <message>
        <source>a colour #rrggbb</source>
        <comment>recording; what a command needs</comment>
        <translation>لون #rrggbb</translation>
    </message>
    <message>
        <source>a key</source>
        <comment>recording; what a command needs</comment>
        <translation>مفتاح</translation>
    </message>
    <message>
        <source>a text</source>
        <comment>recording; what a command needs</comment>
        <translation>نص</translation>
    </message>
    <message>
        <source>a file name</source>
        <comment>recording; what a command needs</comment>
        <translation>اسم ملف</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <comment>recording</comment>
        <translation>أمر غير معروف «%1»</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <comment>recording</comment>
        <translation>الأمر «%1» يحتاج إلى %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2, not &apos;%3&apos;</source>
        <comment>recording</comment>
        <translation>الأمر «%1» يحتاج إلى %2، لا «%3»</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is too much for &apos;%2&apos;</source>
        <comment>recording</comment>
        <translation>القيمة «%1» زائدة على الأمر «%2»</translation>
    </message>
    <message>
        <source>this is not UTF-8 text</source>
        <comment>recording</comment>
        <translation>هذا ليس نصًا بترميز UTF-8</translation>
    </message>
    <message>
        <source>cannot read &apos;%1&apos;: %2</source>
        <comment>recording</comment>
        <translation>تعذّرت قراءة «%1»: %2</translation>
    </message>
    <message>
        <source>a blank is missing at &apos;%1&apos;</source>
        <comment>recording</comment>
        <translation>تنقص مسافة عند «%1»</translation>
    </message>
    <message>
        <source>unknown escape &apos;\%1&apos;</source>
        <comment>recording</comment>
        <translation>تسلسل هروب غير معروف «\%1»</translation>
    </message>
    <message>
        <source>the closing quote is missing</source>
        <comment>recording</comment>
        <translation>علامة الاقتباس الختامية ناقصة</translation>
    </message>
    <message>
        <source>a number of steps</source>
        <comment>recording; what a command needs</comment>
        <translation>عدد من الخطوات</translation>
    </message>
</context>
<context>
    <name>pad::Recovery</name>
    <message>
        <source>Older ones are among the earlier drawings.</source>
        <comment>recovery</comment>
        <translation>الأقدم منها ضمن الرسوم السابقة.</translation>
    </message>
    <message>
        <source>Bring it back</source>
        <comment>recovery</comment>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>Not now</source>
        <comment>recovery</comment>
        <translation>ليس الآن</translation>
    </message>
    <message>
        <source>Save changes to drawing before bringing another one back?</source>
        <comment>recovery</comment>
        <translation>هل تريد حفظ تغييرات الرسم قبل استعادة رسم آخر؟</translation>
    </message>
    <message>
        <source>No copy of the drawing can be kept: %1</source>
        <comment>recovery</comment>
        <translation>تعذّر الاحتفاظ بنسخة من الرسم: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>recovery</comment>
        <translation>موافق</translation>
    </message>
    <message>
        <source>A drawing of %1 was not saved.</source>
        <comment>recovery; %1: &apos;today at 9:30&apos;</comment>
        <translation>رسم (%1) لم يُحفظ.</translation>
    </message>
    <message>
        <source>A drawing of %1 on %2 was not saved.</source>
        <comment>recovery; %1: &apos;today at 9:30&apos;, %2: a file</comment>
        <translation>رسم (%1) على %2 لم يُحفظ.</translation>
    </message>
</context>
<context>
    <name>pad::StatusLine</name>
    <message>
        <source>Tool</source>
        <comment>status line</comment>
        <translation>الأداة</translation>
    </message>
    <message>
        <source>Picture size</source>
        <comment>status line</comment>
        <translation>حجم الصورة</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>status line</comment>
        <translation>التكبير</translation>
    </message>
    <message>
        <source>Position</source>
        <comment>status line</comment>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <comment>picture size</comment>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>zoom</comment>
        <translation>%1٪</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>position</comment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>Status</source>
        <comment>status line</comment>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>status line, spoken</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Size</source>
        <comment>status line; of what is dragged</comment>
        <translation>الحجم</translation>
    </message>
</context>
</TS>
