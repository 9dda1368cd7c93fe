<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th" sourcelanguage="en">
<context>
    <name>KORVA_Canvas</name>
    <message>
        <source>Cut</source>
        <comment>2.11.1;MENU</comment>
        <translation>ตัด</translation>
    </message>
    <message>
        <source>Copy</source>
        <comment>2.11.1;MENU</comment>
        <translation>คัดลอก</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>2.11.1;MENU</comment>
        <translation>วาง</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>menu of the canvas</comment>
        <translation>ภาพวาด</translation>
    </message>
</context>
<context>
    <name>KORVA_ChooseCanvasDlg</name>
    <message>
        <source>32 X 40(stamp)</source>
        <comment>2.11.3;MENU</comment>
        <translation>32 X 40 (ตราประทับ)</translation>
    </message>
    <message>
        <source>200 X 170(normal)</source>
        <comment>2.11.3;MENU</comment>
        <translation>200 X 170 (ปกติ)</translation>
    </message>
    <message>
        <source>Canvas Size:</source>
        <comment>2.11.3;DIALOG_CONTEXT</comment>
        <translation>ขนาดผืนผ้าใบ:</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.3;SOFTKEY_2BUTTON</comment>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.3;SOFTKEY_2BUTTON</comment>
        <translation>ยกเลิก</translation>
    </message>
</context>
<context>
    <name>KORVA_ColorPicker</name>
    <message>
        <source>Red</source>
        <comment>colour channel</comment>
        <translation>แดง</translation>
    </message>
    <message>
        <source>Green</source>
        <comment>colour channel</comment>
        <translation>เขียว</translation>
    </message>
    <message>
        <source>Blue</source>
        <comment>colour channel</comment>
        <translation>น้ำเงิน</translation>
    </message>
    <message>
        <source>Color</source>
        <comment>2.11.6;DIALOG_TITLE</comment>
        <translation>สี</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.6;SOFTKEY_2BUTTON</comment>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.6;SOFTKEY_2BUTTON</comment>
        <translation>ยกเลิก</translation>
    </message>
</context>
<context>
    <name>KORVA_EditCanvas</name>
    <message>
        <source>Save changes to drawing before opening?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>บันทึกการเปลี่ยนแปลงของภาพวาดก่อนเปิดหรือไม่?</translation>
    </message>
    <message>
        <source>Save changes to drawing before choosing canvas?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>บันทึกการเปลี่ยนแปลงของภาพวาดก่อนเลือกผืนผ้าใบหรือไม่?</translation>
    </message>
    <message>
        <source>Save changes to drawing before creating?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>บันทึกการเปลี่ยนแปลงของภาพวาดก่อนสร้างใหม่หรือไม่?</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>2.11.2.3;SOFTKEY_2BUTTON</comment>
        <translation>ใช่</translation>
    </message>
    <message>
        <source>No</source>
        <comment>2.11.2.3;SOFTKEY_2BUTTON</comment>
        <translation>ไม่</translation>
    </message>
    <message>
        <source>The image is oversize</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>รูปภาพมีขนาดใหญ่เกินไป</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>เปิดไฟล์ไม่สำเร็จ</translation>
    </message>
    <message>
        <source>This file can not be opened.</source>
        <comment>4.4.4.2;DIALOG_ICON_50_WARP</comment>
        <translation>เปิดไฟล์นี้ไม่ได้</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>4.4.4.2;SOFTKEY_1BUTTON</comment>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>open buffer fail!</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>เปิดรูปภาพที่ส่งมาไม่ได้!</translation>
    </message>
    <message>
        <source>Insert stamp</source>
        <comment>PICK_DIALOG;TITLE</comment>
        <translation>แทรกตราประทับ</translation>
    </message>
    <message>
        <source>Insert</source>
        <comment>PICK_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>แทรก</translation>
    </message>
    <message>
        <source>Saved Successfully</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>บันทึกเรียบร้อยแล้ว</translation>
    </message>
    <message>
        <source>Saved Failed</source>
        <comment>2.11.2.10;DIALOG_ICON_50</comment>
        <translation>บันทึกไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Delete drawing?</source>
        <comment>2.11.2.1;DIALOG_ICON_50</comment>
        <translation>ลบภาพวาดหรือไม่?</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.2.1;SOFTKEY_2BUTTON</comment>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.2.1;SOFTKEY_2BUTTON</comment>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Fit to page</source>
        <comment>2.11.1;MENU</comment>
        <translation>พอดีหน้า</translation>
    </message>
    <message>
        <source>Tool</source>
        <comment>tool bar</comment>
        <translation>เครื่องมือ</translation>
    </message>
    <message>
        <source>Tool option</source>
        <comment>tool bar</comment>
        <translation>ตัวเลือกเครื่องมือ</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>tool bar</comment>
        <translation>ซูม</translation>
    </message>
    <message>
        <source>Color</source>
        <comment>tool bar</comment>
        <translation>สี</translation>
    </message>
    <message>
        <source>Select</source>
        <comment>tool</comment>
        <translation>เลือก</translation>
    </message>
    <message>
        <source>Eraser</source>
        <comment>tool</comment>
        <translation>ยางลบ</translation>
    </message>
    <message>
        <source>Line</source>
        <comment>tool</comment>
        <translation>เส้นตรง</translation>
    </message>
    <message>
        <source>Pencil</source>
        <comment>tool</comment>
        <translation>ดินสอ</translation>
    </message>
    <message>
        <source>Text</source>
        <comment>tool</comment>
        <translation>ข้อความ</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <comment>tool</comment>
        <translation>สี่เหลี่ยม</translation>
    </message>
    <message>
        <source>Hand</source>
        <comment>tool</comment>
        <translation>มือ</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <comment>tool</comment>
        <translation>วงรี</translation>
    </message>
    <message>
        <source>Small</source>
        <comment>tool option</comment>
        <translation>เล็ก</translation>
    </message>
    <message>
        <source>Medium</source>
        <comment>tool option</comment>
        <translation>กลาง</translation>
    </message>
    <message>
        <source>Large</source>
        <comment>tool option</comment>
        <translation>ใหญ่</translation>
    </message>
    <message>
        <source>Select area</source>
        <comment>tool option</comment>
        <translation>เลือกพื้นที่</translation>
    </message>
    <message>
        <source>Move view</source>
        <comment>tool option</comment>
        <translation>เลื่อนมุมมอง</translation>
    </message>
    <message>
        <source>7 point</source>
        <comment>tool option</comment>
        <translation>7 พอยต์</translation>
    </message>
    <message>
        <source>9 point</source>
        <comment>tool option</comment>
        <translation>9 พอยต์</translation>
    </message>
    <message>
        <source>11 point</source>
        <comment>tool option</comment>
        <translation>11 พอยต์</translation>
    </message>
    <message>
        <source>Outline</source>
        <comment>tool option</comment>
        <translation>เส้นขอบ</translation>
    </message>
    <message>
        <source>Filled</source>
        <comment>tool option</comment>
        <translation>ระบายเต็ม</translation>
    </message>
    <message>
        <source>Opening picture</source>
        <comment>WAIT_BOX</comment>
        <translation>กำลังเปิดรูปภาพ</translation>
    </message>
    <message>
        <source>Drawing editor</source>
        <comment>screen reader</comment>
        <translation>ตัวแก้ไขภาพวาด</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>screen reader</comment>
        <translation>ภาพวาด</translation>
    </message>
    <message>
        <source>Floating piece</source>
        <comment>screen reader</comment>
        <translation>ชิ้นภาพลอย</translation>
    </message>
    <message>
        <source>Zoom %1 %</source>
        <comment>screen reader</comment>
        <translation>ซูม %1%</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <comment>screen reader</comment>
        <translation>%1 คูณ %2 พิกเซล</translation>
    </message>
    <message>
        <source>Pen down at %1, %2</source>
        <comment>screen reader</comment>
        <translation>ปากกาลงอยู่ที่ %1, %2</translation>
    </message>
    <message>
        <source>Pen at %1, %2</source>
        <comment>screen reader</comment>
        <translation>ปากกาอยู่ที่ %1, %2</translation>
    </message>
    <message>
        <source>A text is open</source>
        <comment>screen reader</comment>
        <translation>กำลังพิมพ์ข้อความ</translation>
    </message>
    <message>
        <source>A piece of %1 by %2 pixels floats at %3, %4</source>
        <comment>screen reader</comment>
        <translation>ชิ้นภาพขนาด %1 คูณ %2 พิกเซล ลอยอยู่ที่ %3, %4</translation>
    </message>
    <message>
        <source>red</source>
        <comment>color</comment>
        <translation>สีแดง</translation>
    </message>
    <message>
        <source>orange</source>
        <comment>color</comment>
        <translation>สีส้ม</translation>
    </message>
    <message>
        <source>yellow</source>
        <comment>color</comment>
        <translation>สีเหลือง</translation>
    </message>
    <message>
        <source>green</source>
        <comment>color</comment>
        <translation>สีเขียว</translation>
    </message>
    <message>
        <source>turquoise</source>
        <comment>color</comment>
        <translation>สีฟ้าอมเขียว</translation>
    </message>
    <message>
        <source>blue</source>
        <comment>color</comment>
        <translation>สีน้ำเงิน</translation>
    </message>
    <message>
        <source>violet</source>
        <comment>color</comment>
        <translation>สีม่วง</translation>
    </message>
    <message>
        <source>pink</source>
        <comment>color</comment>
        <translation>สีชมพู</translation>
    </message>
    <message>
        <source>black</source>
        <comment>color</comment>
        <translation>สีดำ</translation>
    </message>
    <message>
        <source>gray</source>
        <comment>color</comment>
        <translation>สีเทา</translation>
    </message>
    <message>
        <source>white</source>
        <comment>color</comment>
        <translation>สีขาว</translation>
    </message>
    <message>
        <source>brown</source>
        <comment>color</comment>
        <translation>สีน้ำตาล</translation>
    </message>
    <message>
        <source>Bold</source>
        <comment>tool option</comment>
        <translation>ตัวหนา</translation>
    </message>
    <message>
        <source>Thin edge</source>
        <comment>tool option; around what is filled</comment>
        <translation>ขอบบาง</translation>
    </message>
    <message>
        <source>Thick edge</source>
        <comment>tool option; around what is filled</comment>
        <translation>ขอบหนา</translation>
    </message>
</context>
<context>
    <name>KORVA_ImageView_Dialog</name>
    <message>
        <source>Cancel</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Confirm</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>ยืนยัน</translation>
    </message>
    <message>
        <source>The image is oversize</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>รูปภาพมีขนาดใหญ่เกินไป</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>เปิดไฟล์ไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Picture load error.</source>
        <comment>2.16.5.9.4;FORM_CONTEXT_WITH_SCROLL_ICON1_20_WARP2</comment>
        <translation>โหลดรูปภาพไม่สำเร็จ</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.16.5.9.4;CST_5BUTTON</comment>
        <translation>ตกลง</translation>
    </message>
</context>
<context>
    <name>KORVA_PasteLabel</name>
    <message>
        <source>Copy</source>
        <comment>2.11.1;MENU</comment>
        <translation>คัดลอก</translation>
    </message>
    <message>
        <source>Cut</source>
        <comment>2.11.1;MENU</comment>
        <translation>ตัด</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>2.11.1;MENU</comment>
        <translation>วาง</translation>
    </message>
    <message>
        <source>Floating piece</source>
        <comment>menu of the piece</comment>
        <translation>ชิ้นภาพลอย</translation>
    </message>
    <message>
        <source>Turn left</source>
        <comment>menu of the piece</comment>
        <translation>หมุนซ้าย</translation>
    </message>
    <message>
        <source>Turn right</source>
        <comment>menu of the piece</comment>
        <translation>หมุนขวา</translation>
    </message>
    <message>
        <source>Flip</source>
        <comment>menu of the piece: left and right change places</comment>
        <translation>พลิกซ้ายขวา</translation>
    </message>
    <message>
        <source>Double</source>
        <comment>menu of the piece: twice as wide and high</comment>
        <translation>ขยายสองเท่า</translation>
    </message>
    <message>
        <source>Halve</source>
        <comment>menu of the piece: half as wide and high</comment>
        <translation>ย่อครึ่งหนึ่ง</translation>
    </message>
    <message>
        <source>White is clear</source>
        <comment>menu of the piece: a switch</comment>
        <translation>สีขาวโปร่งใส</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>menu of the piece</comment>
        <translation>ลบ</translation>
    </message>
</context>
<context>
    <name>KORVA_Preview_Dialog</name>
    <message>
        <source>Cancel</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Confirm</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>ยืนยัน</translation>
    </message>
</context>
<context>
    <name>UTIL_FolderDialog</name>
    <message>
        <source>Up</source>
        <comment>FOLDER_DIALOG;BUTTON</comment>
        <translation>ขึ้นไป</translation>
    </message>
    <message>
        <source>Order</source>
        <comment>FOLDER_DIALOG;BUTTON</comment>
        <translation>ลำดับ</translation>
    </message>
    <message>
        <source>By name</source>
        <comment>FOLDER_DIALOG;LIST</comment>
        <translation>ตามชื่อ</translation>
    </message>
    <message>
        <source>Newest first</source>
        <comment>FOLDER_DIALOG;LIST</comment>
        <translation>ใหม่สุดก่อน</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>FOLDER_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>ยกเลิก</translation>
    </message>
</context>
<context>
    <name>UTIL_MessageBox</name>
    <message>
        <source>Cancel</source>
        <comment>message box</comment>
        <translation>ยกเลิก</translation>
    </message>
</context>
<context>
    <name>UTIL_PickDialog</name>
    <message>
        <source>Open picture</source>
        <comment>PICK_DIALOG;TITLE</comment>
        <translation>เปิดรูปภาพ</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>PICK_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>เปิด</translation>
    </message>
</context>
<context>
    <name>UTIL_PictureView</name>
    <message>
        <source>No pictures here</source>
        <comment>FOLDER_DIALOG;CONTEXT</comment>
        <translation>ไม่มีรูปภาพที่นี่</translation>
    </message>
    <message>
        <source>This folder cannot be read</source>
        <comment>FOLDER_DIALOG;CONTEXT</comment>
        <translation>อ่านโฟลเดอร์นี้ไม่ได้</translation>
    </message>
</context>
<context>
    <name>UTIL_SaveDialog</name>
    <message>
        <source>Save picture as</source>
        <comment>SAVE_DIALOG;TITLE</comment>
        <translation>บันทึกรูปภาพเป็น</translation>
    </message>
    <message>
        <source>Save</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>บันทึก</translation>
    </message>
    <message>
        <source>File name</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>ชื่อไฟล์</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Replace</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>แทนที่</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <comment>SAVE_DIALOG;DIALOG_ICON_50_WARP</comment>
        <translation>แทนที่ %1 หรือไม่?</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>ภาพวาด</translation>
    </message>
    <message>
        <source>Drawing %1</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>ภาพวาด %1</translation>
    </message>
</context>
<context>
    <name>UTIL_ScrollBar</name>
    <message>
        <source>Scroll sideways</source>
        <comment>screen reader</comment>
        <translation>เลื่อนในแนวนอน</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <comment>screen reader</comment>
        <translation>เลื่อนในแนวตั้ง</translation>
    </message>
</context>
<context>
    <name>UTIL_Veil</name>
    <message>
        <source>Dimmed for a dialog</source>
        <comment>screen reader</comment>
        <translation>หรี่ไว้ขณะแสดงกล่องโต้ตอบ</translation>
    </message>
</context>
<context>
    <name>UTIL_WaitBox</name>
    <message>
        <source>Cancel</source>
        <comment>WAIT_BOX;SOFTKEY_1BUTTON</comment>
        <translation>ยกเลิก</translation>
    </message>
</context>
<context>
    <name>desktop</name>
    <message>
        <source>Korva Pad</source>
        <comment>Name</comment>
        <translation>กระดานวาดภาพ Korva</translation>
    </message>
    <message>
        <source>Drawing Pad</source>
        <comment>GenericName</comment>
        <translation>กระดานวาดภาพ</translation>
    </message>
    <message>
        <source>Draw and edit small pictures</source>
        <comment>Comment</comment>
        <translation>วาดและแก้ไขรูปภาพขนาดเล็ก</translation>
    </message>
    <message>
        <source>draw;paint;picture;bitmap;sketch;</source>
        <comment>Keywords; each ends with a semicolon</comment>
        <translation>วาด;วาดภาพ;ระบายสี;รูปภาพ;บิตแมป;สเก็ตช์;</translation>
    </message>
    <message>
        <source>A drawing pad for small touch screens, which works as well with a mouse: pencil, line, rectangle, ellipse, eraser, text and a selection that can be moved, stretched and turned.</source>
        <comment>description</comment>
        <translation>กระดานวาดภาพสำหรับหน้าจอสัมผัสขนาดเล็ก ใช้กับเมาส์ได้ดีเช่นกัน มีดินสอ เส้นตรง สี่เหลี่ยม วงรี ยางลบ ข้อความ และส่วนที่เลือกซึ่งย้าย ยืด และหมุนได้</translation>
    </message>
    <message>
        <source>It reads PNG, GIF, JPEG, BMP and WBMP pictures and writes PNG, JPEG and BMP.</source>
        <comment>description</comment>
        <translation>อ่านรูปภาพ PNG, GIF, JPEG, BMP และ WBMP และเขียนเป็น PNG, JPEG และ BMP</translation>
    </message>
</context>
<context>
    <name>pad::ColorPopup</name>
    <message>
        <source>Colors</source>
        <comment>color pop-up</comment>
        <translation>สี</translation>
    </message>
    <message>
        <source>Value of the color</source>
        <comment>color pop-up</comment>
        <translation>ค่าของสี</translation>
    </message>
    <message>
        <source>#rrggbb, or red, green and blue from 0 to 255</source>
        <comment>color pop-up</comment>
        <translation>#rrggbb หรือแดง เขียว และน้ำเงินจาก 0 ถึง 255</translation>
    </message>
    <message>
        <source>More ...</source>
        <comment>color pop-up; opens a dialog</comment>
        <translation>เพิ่มเติม ...</translation>
    </message>
</context>
<context>
    <name>pad::ColorsDialog</name>
    <message>
        <source>Plain</source>
        <comment>few colors</comment>
        <translation>เรียบ</translation>
    </message>
    <message>
        <source>Dotted</source>
        <comment>few colors</comment>
        <translation>จุดประ</translation>
    </message>
</context>
<context>
    <name>pad::CommandLine</name>
    <message>
        <source>--scale takes a number from 1 to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>--scale ต้องเป็นตัวเลขตั้งแต่ 1 ถึง %1 ไม่ใช่ “%2”</translation>
    </message>
    <message>
        <source>show every pixel N x N (default: as last time, or what suits the screen)</source>
        <comment>help</comment>
        <translation>แสดงแต่ละพิกเซลเป็น N x N (ค่าเริ่มต้น: เหมือนครั้งก่อน หรือตามที่เหมาะกับหน้าจอ)</translation>
    </message>
    <message>
        <source>speak this language, like de or pt_BR</source>
        <comment>help</comment>
        <translation>ใช้ภาษานี้ เช่น de หรือ pt_BR</translation>
    </message>
    <message>
        <source>play a recording; no pointer is needed</source>
        <comment>help</comment>
        <translation>เล่นบันทึกการวาด โดยไม่ต้องใช้ตัวชี้</translation>
    </message>
    <message>
        <source>write a recording of what is drawn</source>
        <comment>help</comment>
        <translation>เขียนบันทึกการวาดของสิ่งที่วาด</translation>
    </message>
    <message>
        <source>save the drawing after the replay, then exit</source>
        <comment>help</comment>
        <translation>บันทึกภาพวาดหลังจากเล่นจบ แล้วออก</translation>
    </message>
    <message>
        <source>write the window as PNG, then exit</source>
        <comment>help</comment>
        <translation>เขียนหน้าต่างเป็น PNG แล้วออก</translation>
    </message>
    <message>
        <source>keep no copy of what is not saved, and offer none</source>
        <comment>help</comment>
        <translation>ไม่เก็บสำเนาของสิ่งที่ยังไม่ได้บันทึก และไม่เสนอให้กู้คืน</translation>
    </message>
    <message>
        <source>show this text</source>
        <comment>help</comment>
        <translation>แสดงข้อความนี้</translation>
    </message>
    <message>
        <source>show the version</source>
        <comment>help</comment>
        <translation>แสดงรุ่น</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <comment>command line</comment>
        <translation>ระบุ %1 สองครั้ง</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <comment>command line</comment>
        <translation>%1 ไม่รับค่า</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; (--help lists them)</source>
        <comment>command line</comment>
        <translation>ไม่รู้จักตัวเลือก “%1” (ดูรายการได้ด้วย --help)</translation>
    </message>
    <message>
        <source>%1 needs a value: %1 %2</source>
        <comment>command line</comment>
        <translation>%1 ต้องมีค่า: %1 %2</translation>
    </message>
    <message>
        <source>one picture at a time: &apos;%1&apos; and &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>เปิดได้ครั้งละหนึ่งรูปภาพ: “%1” และ “%2”</translation>
    </message>
    <message>
        <source>the picture&apos;s name is empty</source>
        <comment>command line</comment>
        <translation>ชื่อรูปภาพว่างเปล่า</translation>
    </message>
    <message>
        <source>Usage: korva-pad [options] [picture]</source>
        <comment>help</comment>
        <translation>วิธีใช้: korva-pad [ตัวเลือก] [รูปภาพ]</translation>
    </message>
    <message>
        <source>A drawing pad: draws on a new canvas or on the picture given.</source>
        <comment>help</comment>
        <translation>กระดานวาดภาพ: วาดบนผืนผ้าใบใหม่หรือบนรูปภาพที่ระบุ</translation>
    </message>
    <message>
        <source>Options:</source>
        <comment>help</comment>
        <translation>ตัวเลือก:</translation>
    </message>
    <message>
        <source>--scale %1 does not fit a screen of %2 x %3; taking %4</source>
        <comment>command line</comment>
        <translation>--scale %1 ไม่พอดีกับหน้าจอขนาด %2 x %3 จึงใช้ %4</translation>
    </message>
    <message>
        <source>there is no language &apos;%1&apos;; taking English (known: %2)</source>
        <comment>command line</comment>
        <translation>ไม่มีภาษา “%1” จึงใช้ภาษาอังกฤษ (ที่รู้จัก: %2)</translation>
    </message>
    <message>
        <source>--undo-steps takes a number from 1 to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>--undo-steps ต้องเป็นตัวเลขตั้งแต่ 1 ถึง %1 ไม่ใช่ “%2”</translation>
    </message>
    <message>
        <source>--working-size takes WxH, up to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>--working-size ต้องเป็น กว้างxสูง ไม่เกิน %1 ไม่ใช่ &apos;%2&apos;</translation>
    </message>
    <message>
        <source>--working-depth takes 16 or 24, not &apos;%1&apos;</source>
        <comment>command line</comment>
        <translation>--working-depth ต้องเป็น 16 หรือ 24 ไม่ใช่ &apos;%1&apos;</translation>
    </message>
    <message>
        <source>how many steps can be undone (default: 50)</source>
        <comment>help</comment>
        <translation>จำนวนขั้นที่เลิกทำได้ (ค่าเริ่มต้น: 50)</translation>
    </message>
    <message>
        <source>fit opened pictures into this size (default: 352x288)</source>
        <comment>help</comment>
        <translation>ปรับภาพที่เปิดให้พอดีกับขนาดนี้ (ค่าเริ่มต้น: 352x288)</translation>
    </message>
    <message>
        <source>the colour depth of opened pictures (default: 16)</source>
        <comment>help</comment>
        <translation>ความลึกสีของภาพที่เปิด (ค่าเริ่มต้น: 16)</translation>
    </message>
</context>
<context>
    <name>pad::Commands</name>
    <message>
        <source>&amp;New ...</source>
        <comment>menu</comment>
        <translation>สร้างใหม่(&amp;N) ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <comment>menu</comment>
        <translation>เปิด(&amp;O) ...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <comment>menu</comment>
        <translation>บันทึก(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;as ...</source>
        <comment>menu</comment>
        <translation>บันทึกเป็น(&amp;A) ...</translation>
    </message>
    <message>
        <source>&amp;Keys ...</source>
        <comment>menu</comment>
        <translation>ปุ่มลัด(&amp;K) ...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <comment>menu</comment>
        <translation>ออก(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Picture</source>
        <comment>menu</comment>
        <translation>รูปภาพ(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Insert stamp ...</source>
        <comment>menu</comment>
        <translation>แทรกตราประทับ(&amp;I) ...</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <comment>menu</comment>
        <translation>ล้าง(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Earlier drawings ...</source>
        <comment>menu</comment>
        <translation>ภาพวาดก่อนหน้า(&amp;E) ...</translation>
    </message>
    <message>
        <source>&amp;Delete picture ...</source>
        <comment>menu</comment>
        <translation>ลบรูปภาพ(&amp;D) ...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <comment>menu</comment>
        <translation>แก้ไข(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <comment>menu</comment>
        <translation>เลิกทำ(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <comment>menu</comment>
        <translation>ทำซ้ำ(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <comment>menu</comment>
        <translation>ตัด(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <comment>menu</comment>
        <translation>คัดลอก(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <comment>menu</comment>
        <translation>วาง(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <comment>menu</comment>
        <translation>ลบ(&amp;D)</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <comment>menu</comment>
        <translation>เลือกทั้งหมด(&amp;A)</translation>
    </message>
    <message>
        <source>Cop&amp;y drawing</source>
        <comment>menu</comment>
        <translation>คัดลอกภาพวาด(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <comment>menu</comment>
        <translation>เครื่องมือ(&amp;T)</translation>
    </message>
    <message>
        <source>Pe&amp;ncil</source>
        <comment>menu</comment>
        <translation>ดินสอ(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <comment>menu</comment>
        <translation>เส้นตรง(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <comment>menu</comment>
        <translation>สี่เหลี่ยม(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Ellipse</source>
        <comment>menu</comment>
        <translation>วงรี(&amp;E)</translation>
    </message>
    <message>
        <source>Er&amp;aser</source>
        <comment>menu</comment>
        <translation>ยางลบ(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <comment>menu</comment>
        <translation>ข้อความ(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <comment>menu</comment>
        <translation>เลือก(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Hand</source>
        <comment>menu</comment>
        <translation>มือ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Color ...</source>
        <comment>menu</comment>
        <translation>สี(&amp;C) ...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <comment>menu</comment>
        <translation>มุมมอง(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <comment>menu</comment>
        <translation>ขยาย(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <comment>menu</comment>
        <translation>ย่อ(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Real size</source>
        <comment>menu</comment>
        <translation>ขนาดจริง(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Fit to page</source>
        <comment>menu</comment>
        <translation>พอดีหน้า(&amp;F)</translation>
    </message>
    <message>
        <source>Full s&amp;creen</source>
        <comment>menu</comment>
        <translation>เต็มจอ(&amp;C)</translation>
    </message>
    <message>
        <source>First option</source>
        <comment>menu</comment>
        <translation>ตัวเลือกที่หนึ่ง</translation>
    </message>
    <message>
        <source>Second option</source>
        <comment>menu</comment>
        <translation>ตัวเลือกที่สอง</translation>
    </message>
    <message>
        <source>Third option</source>
        <comment>menu</comment>
        <translation>ตัวเลือกที่สาม</translation>
    </message>
    <message>
        <source>Menu</source>
        <comment>keys</comment>
        <translation>เมนู</translation>
    </message>
    <message>
        <source>Arrows</source>
        <comment>keys</comment>
        <translation>ลูกศร</translation>
    </message>
    <message>
        <source>Move pen, piece</source>
        <comment>keys</comment>
        <translation>เลื่อนปากกา ชิ้นภาพ</translation>
    </message>
    <message>
        <source>Shift+arrows</source>
        <comment>keys</comment>
        <translation>Shift+ลูกศร</translation>
    </message>
    <message>
        <source>... by 10 pixels</source>
        <comment>keys</comment>
        <translation>... ครั้งละ 10 พิกเซล</translation>
    </message>
    <message>
        <source>Draw while held</source>
        <comment>keys</comment>
        <translation>วาดขณะกดค้าง</translation>
    </message>
    <message>
        <source>Pen down, up</source>
        <comment>keys</comment>
        <translation>ปากกาลง ขึ้น</translation>
    </message>
    <message>
        <source>Put piece down</source>
        <comment>keys</comment>
        <translation>วางชิ้นภาพ</translation>
    </message>
    <message>
        <source>Alt+arrows</source>
        <comment>keys</comment>
        <translation>Alt+ลูกศร</translation>
    </message>
    <message>
        <source>Stretch piece</source>
        <comment>keys</comment>
        <translation>ยืดชิ้นภาพ</translation>
    </message>
    <message>
        <source>Turn piece</source>
        <comment>keys</comment>
        <translation>หมุนชิ้นภาพ</translation>
    </message>
    <message>
        <source>Drop piece</source>
        <comment>keys</comment>
        <translation>ทิ้งชิ้นภาพ</translation>
    </message>
    <message>
        <source>End text</source>
        <comment>keys</comment>
        <translation>จบข้อความ</translation>
    </message>
    <message>
        <source>F&amp;inger pans</source>
        <comment>menu</comment>
        <translation>นิ้วเลื่อนภาพ(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Fill</source>
        <comment>menu</comment>
        <translation>เทสี(&amp;F)</translation>
    </message>
    <message>
        <source>Pic&amp;k color</source>
        <comment>menu</comment>
        <translation>ดูดสี(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;New from picture ...</source>
        <comment>menu</comment>
        <translation>ใหม่จากรูปภาพ(&amp;F) ...</translation>
    </message>
    <message>
        <source>Save for a &amp;message ...</source>
        <comment>menu</comment>
        <translation>สำหรับข้อความ(&amp;M) ...</translation>
    </message>
    <message>
        <source>Save in &amp;few colors ...</source>
        <comment>menu</comment>
        <translation>บันทึกแบบน้อยสี(&amp;C) ...</translation>
    </message>
    <message>
        <source>&amp;Print ...</source>
        <comment>menu</comment>
        <translation>พิมพ์(&amp;P) ...</translation>
    </message>
</context>
<context>
    <name>pad::Copies</name>
    <message>
        <source>The printer does not take it.</source>
        <comment>print</comment>
        <translation>เครื่องพิมพ์ไม่รับงานพิมพ์</translation>
    </message>
</context>
<context>
    <name>pad::CopyDialog</name>
    <message>
        <source>Save</source>
        <comment>copy</comment>
        <translation>บันทึก</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>copy</comment>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>One moment ...</source>
        <comment>copy</comment>
        <translation>สักครู่ ...</translation>
    </message>
    <message>
        <source>The picture does not fit.</source>
        <comment>copy</comment>
        <translation>รูปภาพใหญ่เกินไป</translation>
    </message>
</context>
<context>
    <name>pad::Display</name>
    <message>
        <source>there is no display</source>
        <comment>display</comment>
        <translation>ไม่มีจอแสดงผล</translation>
    </message>
    <message>
        <source>cannot open display %1</source>
        <comment>display</comment>
        <translation>เปิดจอแสดงผล %1 ไม่ได้</translation>
    </message>
    <message>
        <source>there is no screen</source>
        <comment>display</comment>
        <translation>ไม่มีหน้าจอ</translation>
    </message>
    <message>
        <source>cannot show anything on &apos;%1&apos;: %2</source>
        <comment>display</comment>
        <translation>แสดงสิ่งใดบน “%1” ไม่ได้: %2</translation>
    </message>
    <message>
        <source>%1: the toolkit&apos;s plugin for Wayland (%2) is not installed</source>
        <comment>display; %1: its name, %2: a package</comment>
        <translation>%1: ไม่ได้ติดตั้งปลั๊กอิน Wayland ของชุดเครื่องมือ (%2)</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <comment>display; names of displays</comment>
        <translation>%1 หรือ %2</translation>
    </message>
</context>
<context>
    <name>pad::Documents</name>
    <message>
        <source>No copy of the drawing can be kept. Give it up?</source>
        <comment>changes</comment>
        <translation>เก็บสำเนาของภาพวาดไม่ได้ จะทิ้งภาพวาดนี้หรือไม่?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>changes</comment>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Give it up</source>
        <comment>changes</comment>
        <translation>ทิ้ง</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>changes</comment>
        <translation>ใช่</translation>
    </message>
    <message>
        <source>No</source>
        <comment>changes</comment>
        <translation>ไม่</translation>
    </message>
    <message>
        <source>Save changes to drawing before closing?</source>
        <comment>changes</comment>
        <translation>บันทึกการเปลี่ยนแปลงของภาพวาดก่อนปิดหรือไม่?</translation>
    </message>
    <message>
        <source>Black and white</source>
        <comment>canvas type</comment>
        <translation>ขาวดำ</translation>
    </message>
    <message numerus="yes">
        <source>%Ln colors</source>
        <comment>canvas type</comment>
        <translation>
            <numerusform>%Ln สี</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>canvas type</comment>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>How many colors?</source>
        <comment>canvas type</comment>
        <translation>ใช้กี่สี?</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>saving</comment>
        <translation>ไม่ได้บันทึก: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>saving</comment>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>Save changes to drawing before creating?</source>
        <comment>changes</comment>
        <translation>บันทึกการเปลี่ยนแปลงของภาพวาดก่อนสร้างใหม่หรือไม่?</translation>
    </message>
    <message>
        <source>Save changes to drawing before opening?</source>
        <comment>changes</comment>
        <translation>บันทึกการเปลี่ยนแปลงของภาพวาดก่อนเปิดหรือไม่?</translation>
    </message>
    <message>
        <source>%1 was changed since it was opened: replacing it would lose that.</source>
        <comment>saving</comment>
        <translation>%1 ถูกเปลี่ยนแปลงหลังจากที่เปิด หากแทนที่ การเปลี่ยนแปลงนั้นจะหายไป</translation>
    </message>
    <message>
        <source>Save as new</source>
        <comment>saving</comment>
        <translation>บันทึกเป็นไฟล์ใหม่</translation>
    </message>
    <message>
        <source>Replace</source>
        <comment>saving</comment>
        <translation>แทนที่</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>saving</comment>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>deleting</comment>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Move %1 to the trash?</source>
        <comment>deleting</comment>
        <translation>ย้าย %1 ไปถังขยะหรือไม่?</translation>
    </message>
    <message>
        <source>To the trash</source>
        <comment>deleting</comment>
        <translation>ย้ายไปถังขยะ</translation>
    </message>
    <message>
        <source>There is no trash for %1. Delete it for good?</source>
        <comment>deleting</comment>
        <translation>ไม่มีถังขยะสำหรับ %1 จะลบอย่างถาวรหรือไม่?</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>deleting</comment>
        <translation>ลบ</translation>
    </message>
    <message>
        <source>Not deleted: %1</source>
        <comment>deleting</comment>
        <translation>ไม่ได้ลบ: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>deleting</comment>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>%1 pictures can only be opened: the drawing of %2 pixels needs a new file.</source>
        <comment>saving; %1: &apos;GIF&apos;, %2: &apos;300 × 200&apos;</comment>
        <translation>รูปภาพ %1 เปิดได้อย่างเดียว ภาพวาดขนาด %2 พิกเซลต้องใช้ไฟล์ใหม่</translation>
    </message>
    <message>
        <source>%1 has %2 pixels and the drawing %3: replacing it would lose the rest.</source>
        <comment>saving; %1: a file, %2 and %3: &apos;300 × 200&apos;</comment>
        <translation>%1 มี %2 พิกเซล แต่ภาพวาดมี %3 พิกเซล หากแทนที่ ส่วนที่เหลือจะหายไป</translation>
    </message>
    <message>
        <source>%1 has more colors than the drawing of %2 pixels: replacing it would lose them.</source>
        <comment>saving; %1: a file, %2: &apos;300 × 200&apos;</comment>
        <translation>%1 มีสีมากกว่าภาพวาดขนาด %2 พิกเซล หากแทนที่ สีเหล่านั้นจะหายไป</translation>
    </message>
    <message>
        <source>New from picture</source>
        <comment>pick dialog</comment>
        <translation>ใหม่จากรูปภาพ</translation>
    </message>
    <message>
        <source>%1 was saved: %2</source>
        <comment>saving; %1: a file, %2: &apos;29.6 kB&apos;</comment>
        <translation>บันทึก %1 แล้ว: %2</translation>
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
        <translation>ดิสก์เต็ม</translation>
    </message>
    <message>
        <source>No permission to write in %1.</source>
        <comment>saving</comment>
        <translation>ไม่มีสิทธิ์เขียนใน %1</translation>
    </message>
    <message>
        <source>%1 is on a disk that can only be read.</source>
        <comment>saving</comment>
        <translation>%1 อยู่บนดิสก์ที่อ่านได้อย่างเดียว</translation>
    </message>
    <message>
        <source>The disk reports an error.</source>
        <comment>saving</comment>
        <translation>ดิสก์แจ้งข้อผิดพลาด</translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <comment>saving</comment>
        <translation>ไม่มีโฟลเดอร์ %1</translation>
    </message>
    <message>
        <source>There is a folder of this name.</source>
        <comment>saving</comment>
        <translation>มีโฟลเดอร์ชื่อนี้อยู่แล้ว</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <comment>saving</comment>
        <translation>ชื่อยาวเกินไป</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2</source>
        <comment>command line</comment>
        <translation>เขียน “%1” ไม่ได้: %2</translation>
    </message>
    <message>
        <source>cannot open &apos;%1&apos;: %2</source>
        <comment>command line</comment>
        <translation>เปิด “%1” ไม่ได้: %2</translation>
    </message>
    <message>
        <source>GIF pictures are only read</source>
        <comment>command line</comment>
        <translation>รูปภาพ GIF อ่านได้อย่างเดียว</translation>
    </message>
    <message>
        <source>Saving drawing</source>
        <comment>saving</comment>
        <translation>กำลังบันทึกภาพวาด</translation>
    </message>
</context>
<context>
    <name>pad::EarlierDialog</name>
    <message>
        <source>Earlier drawings</source>
        <comment>earlier drawings</comment>
        <translation>ภาพวาดก่อนหน้า</translation>
    </message>
    <message>
        <source>None was kept so far.</source>
        <comment>earlier drawings</comment>
        <translation>ยังไม่มีภาพวาดที่เก็บไว้</translation>
    </message>
    <message>
        <source>Bring it back</source>
        <comment>earlier drawings</comment>
        <translation>นำกลับมา</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>earlier drawings</comment>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>today at %1</source>
        <comment>time, in a list and in a sentence; %1: &apos;9:30&apos;</comment>
        <translation>วันนี้ เวลา %1</translation>
    </message>
    <message>
        <source>yesterday at %1</source>
        <comment>time, in a list and in a sentence; %1: &apos;9:30&apos;</comment>
        <translation>เมื่อวาน เวลา %1</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>time, in a list and in a sentence; %1: a date, %2: &apos;9:30&apos;</comment>
        <translation>%1 เวลา %2</translation>
    </message>
</context>
<context>
    <name>pad::KeysDialog</name>
    <message>
        <source>Keys</source>
        <comment>keys</comment>
        <translation>ปุ่มลัด</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>keys</comment>
        <translation>ปิด</translation>
    </message>
    <message>
        <source>Buttons</source>
        <comment>keys; title, of the tool bar&apos;s buttons</comment>
        <translation>ปุ่ม</translation>
    </message>
</context>
<context>
    <name>pad::PadTools</name>
    <message>
        <source>Fill</source>
        <comment>tool</comment>
        <translation>เทสี</translation>
    </message>
    <message>
        <source>Pick color</source>
        <comment>tool</comment>
        <translation>ดูดสี</translation>
    </message>
    <message>
        <source>%1 points</source>
        <comment>tool option</comment>
        <translation>%1 พอยต์</translation>
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
        <translation>เมนู</translation>
    </message>
    <message>
        <source>Drawing[*] - Korva</source>
        <comment>window title</comment>
        <translation>ภาพวาด[*] - Korva</translation>
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
        <translation>คำถาม “%1” ไม่มีคำตอบ</translation>
    </message>
    <message>
        <source>no picture is named to open</source>
        <comment>replay</comment>
        <translation>ไม่ได้ระบุรูปภาพที่จะเปิด</translation>
    </message>
    <message>
        <source>the drawing has no name to be saved under</source>
        <comment>replay</comment>
        <translation>ภาพวาดไม่มีชื่อสำหรับบันทึก</translation>
    </message>
</context>
<context>
    <name>pad::Player</name>
    <message>
        <source>the tool has no option %1</source>
        <comment>replay</comment>
        <translation>เครื่องมือไม่มีตัวเลือก %1</translation>
    </message>
    <message>
        <source>the drawing could not be saved</source>
        <comment>replay</comment>
        <translation>บันทึกภาพวาดไม่ได้</translation>
    </message>
</context>
<context>
    <name>pad::Preview</name>
    <message>
        <source>Usage: korva-preview [options] PICTURE</source>
        <comment>help</comment>
        <translation>วิธีใช้: korva-preview [ตัวเลือก] PICTURE</translation>
    </message>
    <message>
        <source>Shows a picture to be confirmed or cancelled: prints 900 and exits with 0 when it was
confirmed, prints 902 and exits with 1 when it was cancelled.</source>
        <comment>help</comment>
        <translation>แสดงรูปภาพให้ยืนยันหรือยกเลิก: เมื่อยืนยันจะพิมพ์ 900 และออกด้วยค่า 0
เมื่อยกเลิกจะพิมพ์ 902 และออกด้วยค่า 1</translation>
    </message>
    <message>
        <source>which picture? korva-preview PICTURE</source>
        <comment>command line</comment>
        <translation>รูปภาพใด? korva-preview PICTURE</translation>
    </message>
</context>
<context>
    <name>pad::PrintDialog</name>
    <message>
        <source>Printer</source>
        <comment>print</comment>
        <translation>เครื่องพิมพ์</translation>
    </message>
</context>
<context>
    <name>pad::Recording</name>
    <message>
        <source>a number</source>
        <comment>recording; what a command needs</comment>
        <translation>ตัวเลข</translation>
    </message>
    <message>
        <source>a tool</source>
        <comment>recording; what a command needs</comment>
        <translation>เครื่องมือ</translation>
    </message>
    <message>
        <source>a zoom</source>
        <comment>recording; what a command needs</comment>
        <translation>ค่าซูม</translation>
    </message>
    <message>
        <source>a canvas type</source>
        <comment>recording; what a command needs</comment>
        <translation>ชนิดผืนผ้าใบ</translation>
    </message>
    <message>
        <source>a colour #rrggbb</source>
        <comment>recording; what a command needs</comment>
        <translation>สี #rrggbb</translation>
    </message>
    <message>
        <source>a key</source>
        <comment>recording; what a command needs</comment>
        <translation>ปุ่ม</translation>
    </message>
    <message>
        <source>a text</source>
        <comment>recording; what a command needs</comment>
        <translation>ข้อความ</translation>
    </message>
    <message>
        <source>a file name</source>
        <comment>recording; what a command needs</comment>
        <translation>ชื่อไฟล์</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <comment>recording</comment>
        <translation>ไม่รู้จักคำสั่ง “%1”</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <comment>recording</comment>
        <translation>“%1” ต้องมี %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2, not &apos;%3&apos;</source>
        <comment>recording</comment>
        <translation>“%1” ต้องมี %2 ไม่ใช่ “%3”</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is too much for &apos;%2&apos;</source>
        <comment>recording</comment>
        <translation>“%1” เกินมาสำหรับ “%2”</translation>
    </message>
    <message>
        <source>this is not UTF-8 text</source>
        <comment>recording</comment>
        <translation>นี่ไม่ใช่ข้อความ UTF-8</translation>
    </message>
    <message>
        <source>cannot read &apos;%1&apos;: %2</source>
        <comment>recording</comment>
        <translation>อ่าน “%1” ไม่ได้: %2</translation>
    </message>
    <message>
        <source>a blank is missing at &apos;%1&apos;</source>
        <comment>recording</comment>
        <translation>ขาดช่องว่างที่ “%1”</translation>
    </message>
    <message>
        <source>unknown escape &apos;\%1&apos;</source>
        <comment>recording</comment>
        <translation>ไม่รู้จักอักขระหลีก “\%1”</translation>
    </message>
    <message>
        <source>the closing quote is missing</source>
        <comment>recording</comment>
        <translation>ขาดเครื่องหมายอัญประกาศปิด</translation>
    </message>
    <message>
        <source>a number of steps</source>
        <comment>recording; what a command needs</comment>
        <translation>จำนวนขั้น</translation>
    </message>
</context>
<context>
    <name>pad::Recovery</name>
    <message>
        <source>Older ones are among the earlier drawings.</source>
        <comment>recovery</comment>
        <translation>ภาพที่เก่ากว่าอยู่ใน “ภาพวาดก่อนหน้า”</translation>
    </message>
    <message>
        <source>Bring it back</source>
        <comment>recovery</comment>
        <translation>นำกลับมา</translation>
    </message>
    <message>
        <source>Not now</source>
        <comment>recovery</comment>
        <translation>ไว้ทีหลัง</translation>
    </message>
    <message>
        <source>Save changes to drawing before bringing another one back?</source>
        <comment>recovery</comment>
        <translation>บันทึกการเปลี่ยนแปลงของภาพวาดก่อนนำภาพอื่นกลับมาหรือไม่?</translation>
    </message>
    <message>
        <source>No copy of the drawing can be kept: %1</source>
        <comment>recovery</comment>
        <translation>เก็บสำเนาของภาพวาดไม่ได้: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>recovery</comment>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>A drawing of %1 was not saved.</source>
        <comment>recovery; %1: &apos;today at 9:30&apos;</comment>
        <translation>ภาพวาด (%1) ยังไม่ได้บันทึก</translation>
    </message>
    <message>
        <source>A drawing of %1 on %2 was not saved.</source>
        <comment>recovery; %1: &apos;today at 9:30&apos;, %2: a file</comment>
        <translation>ภาพวาด (%1) บน %2 ยังไม่ได้บันทึก</translation>
    </message>
</context>
<context>
    <name>pad::StatusLine</name>
    <message>
        <source>Tool</source>
        <comment>status line</comment>
        <translation>เครื่องมือ</translation>
    </message>
    <message>
        <source>Picture size</source>
        <comment>status line</comment>
        <translation>ขนาดรูปภาพ</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>status line</comment>
        <translation>ซูม</translation>
    </message>
    <message>
        <source>Position</source>
        <comment>status line</comment>
        <translation>ตำแหน่ง</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <comment>picture size</comment>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>zoom</comment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>position</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Status</source>
        <comment>status line</comment>
        <translation>สถานะ</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>status line, spoken</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Size</source>
        <comment>status line; of what is dragged</comment>
        <translation>ขนาด</translation>
    </message>
</context>
</TS>
