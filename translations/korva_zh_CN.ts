<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>KORVA_Canvas</name>
    <message>
        <source>Cut</source>
        <comment>2.11.1;MENU</comment>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <comment>2.11.1;MENU</comment>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>2.11.1;MENU</comment>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>menu of the canvas</comment>
        <translation>绘图</translation>
    </message>
</context>
<context>
    <name>KORVA_ChooseCanvasDlg</name>
    <message>
        <source>32 X 40(stamp)</source>
        <comment>2.11.3;MENU</comment>
        <translation>32 X 40（图章）</translation>
    </message>
    <message>
        <source>200 X 170(normal)</source>
        <comment>2.11.3;MENU</comment>
        <translation>200 X 170（标准）</translation>
    </message>
    <message>
        <source>Canvas Size:</source>
        <comment>2.11.3;DIALOG_CONTEXT</comment>
        <translation>画布大小：</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.3;SOFTKEY_2BUTTON</comment>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.3;SOFTKEY_2BUTTON</comment>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>KORVA_ColorPicker</name>
    <message>
        <source>Red</source>
        <comment>colour channel</comment>
        <translation>红</translation>
    </message>
    <message>
        <source>Green</source>
        <comment>colour channel</comment>
        <translation>绿</translation>
    </message>
    <message>
        <source>Blue</source>
        <comment>colour channel</comment>
        <translation>蓝</translation>
    </message>
    <message>
        <source>Color</source>
        <comment>2.11.6;DIALOG_TITLE</comment>
        <translation>颜色</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.6;SOFTKEY_2BUTTON</comment>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.6;SOFTKEY_2BUTTON</comment>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>KORVA_EditCanvas</name>
    <message>
        <source>Save changes to drawing before opening?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>打开前是否保存对绘图的更改？</translation>
    </message>
    <message>
        <source>Save changes to drawing before choosing canvas?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>选择画布前是否保存对绘图的更改？</translation>
    </message>
    <message>
        <source>Save changes to drawing before creating?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>新建前是否保存对绘图的更改？</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>2.11.2.3;SOFTKEY_2BUTTON</comment>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <comment>2.11.2.3;SOFTKEY_2BUTTON</comment>
        <translation>否</translation>
    </message>
    <message>
        <source>The image is oversize</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>图片过大</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>无法打开文件</translation>
    </message>
    <message>
        <source>This file can not be opened.</source>
        <comment>4.4.4.2;DIALOG_ICON_50_WARP</comment>
        <translation>此文件无法打开。</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>4.4.4.2;SOFTKEY_1BUTTON</comment>
        <translation>确定</translation>
    </message>
    <message>
        <source>open buffer fail!</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>无法打开传入的图片！</translation>
    </message>
    <message>
        <source>Insert stamp</source>
        <comment>PICK_DIALOG;TITLE</comment>
        <translation>插入图章</translation>
    </message>
    <message>
        <source>Insert</source>
        <comment>PICK_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>插入</translation>
    </message>
    <message>
        <source>Saved Successfully</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>保存成功</translation>
    </message>
    <message>
        <source>Saved Failed</source>
        <comment>2.11.2.10;DIALOG_ICON_50</comment>
        <translation>保存失败</translation>
    </message>
    <message>
        <source>Delete drawing?</source>
        <comment>2.11.2.1;DIALOG_ICON_50</comment>
        <translation>删除绘图？</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.2.1;SOFTKEY_2BUTTON</comment>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.2.1;SOFTKEY_2BUTTON</comment>
        <translation>取消</translation>
    </message>
    <message>
        <source>Fit to page</source>
        <comment>2.11.1;MENU</comment>
        <translation>适合页面</translation>
    </message>
    <message>
        <source>Tool</source>
        <comment>tool bar</comment>
        <translation>工具</translation>
    </message>
    <message>
        <source>Tool option</source>
        <comment>tool bar</comment>
        <translation>工具选项</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>tool bar</comment>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Color</source>
        <comment>tool bar</comment>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Select</source>
        <comment>tool</comment>
        <translation>选择</translation>
    </message>
    <message>
        <source>Eraser</source>
        <comment>tool</comment>
        <translation>橡皮擦</translation>
    </message>
    <message>
        <source>Line</source>
        <comment>tool</comment>
        <translation>直线</translation>
    </message>
    <message>
        <source>Pencil</source>
        <comment>tool</comment>
        <translation>铅笔</translation>
    </message>
    <message>
        <source>Text</source>
        <comment>tool</comment>
        <translation>文字</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <comment>tool</comment>
        <translation>矩形</translation>
    </message>
    <message>
        <source>Hand</source>
        <comment>tool</comment>
        <translation>抓手</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <comment>tool</comment>
        <translation>椭圆</translation>
    </message>
    <message>
        <source>Small</source>
        <comment>tool option</comment>
        <translation>小</translation>
    </message>
    <message>
        <source>Medium</source>
        <comment>tool option</comment>
        <translation>中</translation>
    </message>
    <message>
        <source>Large</source>
        <comment>tool option</comment>
        <translation>大</translation>
    </message>
    <message>
        <source>Select area</source>
        <comment>tool option</comment>
        <translation>选择区域</translation>
    </message>
    <message>
        <source>Move view</source>
        <comment>tool option</comment>
        <translation>移动视图</translation>
    </message>
    <message>
        <source>7 point</source>
        <comment>tool option</comment>
        <translation>7 磅</translation>
    </message>
    <message>
        <source>9 point</source>
        <comment>tool option</comment>
        <translation>9 磅</translation>
    </message>
    <message>
        <source>11 point</source>
        <comment>tool option</comment>
        <translation>11 磅</translation>
    </message>
    <message>
        <source>Outline</source>
        <comment>tool option</comment>
        <translation>轮廓</translation>
    </message>
    <message>
        <source>Filled</source>
        <comment>tool option</comment>
        <translation>填充</translation>
    </message>
    <message>
        <source>Opening picture</source>
        <comment>WAIT_BOX</comment>
        <translation>正在打开图片</translation>
    </message>
    <message>
        <source>Drawing editor</source>
        <comment>screen reader</comment>
        <translation>绘图编辑器</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>screen reader</comment>
        <translation>绘图</translation>
    </message>
    <message>
        <source>Floating piece</source>
        <comment>screen reader</comment>
        <translation>浮动部分</translation>
    </message>
    <message>
        <source>Zoom %1 %</source>
        <comment>screen reader</comment>
        <translation>缩放 %1 %</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <comment>screen reader</comment>
        <translation>%1 × %2 像素</translation>
    </message>
    <message>
        <source>Pen down at %1, %2</source>
        <comment>screen reader</comment>
        <translation>画笔落在 %1, %2</translation>
    </message>
    <message>
        <source>Pen at %1, %2</source>
        <comment>screen reader</comment>
        <translation>画笔在 %1, %2</translation>
    </message>
    <message>
        <source>A text is open</source>
        <comment>screen reader</comment>
        <translation>正在输入文本</translation>
    </message>
    <message>
        <source>A piece of %1 by %2 pixels floats at %3, %4</source>
        <comment>screen reader</comment>
        <translation>%1 × %2 像素的部分浮动在 %3, %4</translation>
    </message>
    <message>
        <source>red</source>
        <comment>color</comment>
        <translation>红色</translation>
    </message>
    <message>
        <source>orange</source>
        <comment>color</comment>
        <translation>橙色</translation>
    </message>
    <message>
        <source>yellow</source>
        <comment>color</comment>
        <translation>黄色</translation>
    </message>
    <message>
        <source>green</source>
        <comment>color</comment>
        <translation>绿色</translation>
    </message>
    <message>
        <source>turquoise</source>
        <comment>color</comment>
        <translation>青色</translation>
    </message>
    <message>
        <source>blue</source>
        <comment>color</comment>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>violet</source>
        <comment>color</comment>
        <translation>紫色</translation>
    </message>
    <message>
        <source>pink</source>
        <comment>color</comment>
        <translation>粉色</translation>
    </message>
    <message>
        <source>black</source>
        <comment>color</comment>
        <translation>黑色</translation>
    </message>
    <message>
        <source>gray</source>
        <comment>color</comment>
        <translation>灰色</translation>
    </message>
    <message>
        <source>white</source>
        <comment>color</comment>
        <translation>白色</translation>
    </message>
    <message>
        <source>brown</source>
        <comment>color</comment>
        <translation>棕色</translation>
    </message>
</context>
<context>
    <name>KORVA_ImageView_Dialog</name>
    <message>
        <source>Cancel</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>取消</translation>
    </message>
    <message>
        <source>Confirm</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>确认</translation>
    </message>
    <message>
        <source>The image is oversize</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>图片过大</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>无法打开文件</translation>
    </message>
    <message>
        <source>Picture load error.</source>
        <comment>2.16.5.9.4;FORM_CONTEXT_WITH_SCROLL_ICON1_20_WARP2</comment>
        <translation>图片加载失败。</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.16.5.9.4;CST_5BUTTON</comment>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>KORVA_PasteLabel</name>
    <message>
        <source>Copy</source>
        <comment>2.11.1;MENU</comment>
        <translation>复制</translation>
    </message>
    <message>
        <source>Cut</source>
        <comment>2.11.1;MENU</comment>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>2.11.1;MENU</comment>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Floating piece</source>
        <comment>menu of the piece</comment>
        <translation>浮动部分</translation>
    </message>
</context>
<context>
    <name>KORVA_Preview_Dialog</name>
    <message>
        <source>Cancel</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>取消</translation>
    </message>
    <message>
        <source>Confirm</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>确认</translation>
    </message>
</context>
<context>
    <name>UTIL_FolderDialog</name>
    <message>
        <source>Up</source>
        <comment>FOLDER_DIALOG;BUTTON</comment>
        <translation>向上</translation>
    </message>
    <message>
        <source>Order</source>
        <comment>FOLDER_DIALOG;BUTTON</comment>
        <translation>排序</translation>
    </message>
    <message>
        <source>By name</source>
        <comment>FOLDER_DIALOG;LIST</comment>
        <translation>按名称</translation>
    </message>
    <message>
        <source>Newest first</source>
        <comment>FOLDER_DIALOG;LIST</comment>
        <translation>最新的在前</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>FOLDER_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>UTIL_MessageBox</name>
    <message>
        <source>Cancel</source>
        <comment>message box</comment>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>UTIL_PickDialog</name>
    <message>
        <source>Open picture</source>
        <comment>PICK_DIALOG;TITLE</comment>
        <translation>打开图片</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>PICK_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>打开</translation>
    </message>
</context>
<context>
    <name>UTIL_PictureView</name>
    <message>
        <source>No pictures here</source>
        <comment>FOLDER_DIALOG;CONTEXT</comment>
        <translation>这里没有图片</translation>
    </message>
    <message>
        <source>This folder cannot be read</source>
        <comment>FOLDER_DIALOG;CONTEXT</comment>
        <translation>无法读取此文件夹</translation>
    </message>
</context>
<context>
    <name>UTIL_SaveDialog</name>
    <message>
        <source>Save picture as</source>
        <comment>SAVE_DIALOG;TITLE</comment>
        <translation>图片另存为</translation>
    </message>
    <message>
        <source>Save</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>保存</translation>
    </message>
    <message>
        <source>File name</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>取消</translation>
    </message>
    <message>
        <source>Replace</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>替换</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <comment>SAVE_DIALOG;DIALOG_ICON_50_WARP</comment>
        <translation>替换 %1？</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>绘图</translation>
    </message>
    <message>
        <source>Drawing %1</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>绘图 %1</translation>
    </message>
</context>
<context>
    <name>UTIL_ScrollBar</name>
    <message>
        <source>Scroll sideways</source>
        <comment>screen reader</comment>
        <translation>水平滚动</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <comment>screen reader</comment>
        <translation>垂直滚动</translation>
    </message>
</context>
<context>
    <name>UTIL_Veil</name>
    <message>
        <source>Dimmed for a dialog</source>
        <comment>screen reader</comment>
        <translation>因对话框变暗</translation>
    </message>
</context>
<context>
    <name>UTIL_WaitBox</name>
    <message>
        <source>Cancel</source>
        <comment>WAIT_BOX;SOFTKEY_1BUTTON</comment>
        <translation>取消</translation>
    </message>
</context>
</TS>
