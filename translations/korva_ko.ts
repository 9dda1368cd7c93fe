<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>KORVA_Canvas</name>
    <message>
        <source>Cut</source>
        <comment>2.11.1;MENU</comment>
        <translation>잘라내기</translation>
    </message>
    <message>
        <source>Copy</source>
        <comment>2.11.1;MENU</comment>
        <translation>복사</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>2.11.1;MENU</comment>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>menu of the canvas</comment>
        <translation>그림</translation>
    </message>
</context>
<context>
    <name>KORVA_ChooseCanvasDlg</name>
    <message>
        <source>32 X 40(stamp)</source>
        <comment>2.11.3;MENU</comment>
        <translation>32 X 40(스탬프)</translation>
    </message>
    <message>
        <source>200 X 170(normal)</source>
        <comment>2.11.3;MENU</comment>
        <translation>200 X 170(보통)</translation>
    </message>
    <message>
        <source>Canvas Size:</source>
        <comment>2.11.3;DIALOG_CONTEXT</comment>
        <translation>캔버스 크기:</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.3;SOFTKEY_2BUTTON</comment>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.3;SOFTKEY_2BUTTON</comment>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>KORVA_ColorPicker</name>
    <message>
        <source>Red</source>
        <comment>colour channel</comment>
        <translation>빨강</translation>
    </message>
    <message>
        <source>Green</source>
        <comment>colour channel</comment>
        <translation>초록</translation>
    </message>
    <message>
        <source>Blue</source>
        <comment>colour channel</comment>
        <translation>파랑</translation>
    </message>
    <message>
        <source>Color</source>
        <comment>2.11.6;DIALOG_TITLE</comment>
        <translation>색</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.6;SOFTKEY_2BUTTON</comment>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.6;SOFTKEY_2BUTTON</comment>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>KORVA_EditCanvas</name>
    <message>
        <source>Save changes to drawing before opening?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>열기 전에 그림의 변경 사항을 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Save changes to drawing before choosing canvas?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>캔버스를 선택하기 전에 그림의 변경 사항을 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Save changes to drawing before creating?</source>
        <comment>2.11.2.3;DIALOG_ICON_50_WARP</comment>
        <translation>새로 만들기 전에 그림의 변경 사항을 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>2.11.2.3;SOFTKEY_2BUTTON</comment>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <comment>2.11.2.3;SOFTKEY_2BUTTON</comment>
        <translation>아니요</translation>
    </message>
    <message>
        <source>The image is oversize</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>이미지가 너무 큽니다</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>파일을 열 수 없습니다</translation>
    </message>
    <message>
        <source>This file can not be opened.</source>
        <comment>4.4.4.2;DIALOG_ICON_50_WARP</comment>
        <translation>이 파일은 열 수 없습니다.</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>4.4.4.2;SOFTKEY_1BUTTON</comment>
        <translation>확인</translation>
    </message>
    <message>
        <source>open buffer fail!</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>전달된 이미지를 열 수 없습니다!</translation>
    </message>
    <message>
        <source>Insert stamp</source>
        <comment>PICK_DIALOG;TITLE</comment>
        <translation>스탬프 삽입</translation>
    </message>
    <message>
        <source>Insert</source>
        <comment>PICK_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>삽입</translation>
    </message>
    <message>
        <source>Saved Successfully</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>저장했습니다</translation>
    </message>
    <message>
        <source>Saved Failed</source>
        <comment>2.11.2.10;DIALOG_ICON_50</comment>
        <translation>저장하지 못했습니다</translation>
    </message>
    <message>
        <source>Delete drawing?</source>
        <comment>2.11.2.1;DIALOG_ICON_50</comment>
        <translation>그림을 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.11.2.1;SOFTKEY_2BUTTON</comment>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>2.11.2.1;SOFTKEY_2BUTTON</comment>
        <translation>취소</translation>
    </message>
    <message>
        <source>Fit to page</source>
        <comment>2.11.1;MENU</comment>
        <translation>쪽 맞춤</translation>
    </message>
    <message>
        <source>Tool</source>
        <comment>tool bar</comment>
        <translation>도구</translation>
    </message>
    <message>
        <source>Tool option</source>
        <comment>tool bar</comment>
        <translation>도구 옵션</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>tool bar</comment>
        <translation>배율</translation>
    </message>
    <message>
        <source>Color</source>
        <comment>tool bar</comment>
        <translation>색</translation>
    </message>
    <message>
        <source>Select</source>
        <comment>tool</comment>
        <translation>선택</translation>
    </message>
    <message>
        <source>Eraser</source>
        <comment>tool</comment>
        <translation>지우개</translation>
    </message>
    <message>
        <source>Line</source>
        <comment>tool</comment>
        <translation>직선</translation>
    </message>
    <message>
        <source>Pencil</source>
        <comment>tool</comment>
        <translation>연필</translation>
    </message>
    <message>
        <source>Text</source>
        <comment>tool</comment>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <comment>tool</comment>
        <translation>사각형</translation>
    </message>
    <message>
        <source>Hand</source>
        <comment>tool</comment>
        <translation>손</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <comment>tool</comment>
        <translation>타원</translation>
    </message>
    <message>
        <source>Small</source>
        <comment>tool option</comment>
        <translation>작게</translation>
    </message>
    <message>
        <source>Medium</source>
        <comment>tool option</comment>
        <translation>중간</translation>
    </message>
    <message>
        <source>Large</source>
        <comment>tool option</comment>
        <translation>크게</translation>
    </message>
    <message>
        <source>Select area</source>
        <comment>tool option</comment>
        <translation>영역 선택</translation>
    </message>
    <message>
        <source>Move view</source>
        <comment>tool option</comment>
        <translation>보기 이동</translation>
    </message>
    <message>
        <source>7 point</source>
        <comment>tool option</comment>
        <translation>7포인트</translation>
    </message>
    <message>
        <source>9 point</source>
        <comment>tool option</comment>
        <translation>9포인트</translation>
    </message>
    <message>
        <source>11 point</source>
        <comment>tool option</comment>
        <translation>11포인트</translation>
    </message>
    <message>
        <source>Outline</source>
        <comment>tool option</comment>
        <translation>윤곽선</translation>
    </message>
    <message>
        <source>Filled</source>
        <comment>tool option</comment>
        <translation>채움</translation>
    </message>
    <message>
        <source>Opening picture</source>
        <comment>WAIT_BOX</comment>
        <translation>이미지를 여는 중</translation>
    </message>
    <message>
        <source>Drawing editor</source>
        <comment>screen reader</comment>
        <translation>그림 편집기</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>screen reader</comment>
        <translation>그림</translation>
    </message>
    <message>
        <source>Floating piece</source>
        <comment>screen reader</comment>
        <translation>떠 있는 조각</translation>
    </message>
    <message>
        <source>Zoom %1 %</source>
        <comment>screen reader</comment>
        <translation>배율 %1%</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <comment>screen reader</comment>
        <translation>가로 %1, 세로 %2 픽셀</translation>
    </message>
    <message>
        <source>Pen down at %1, %2</source>
        <comment>screen reader</comment>
        <translation>펜이 %1, %2에 내려져 있음</translation>
    </message>
    <message>
        <source>Pen at %1, %2</source>
        <comment>screen reader</comment>
        <translation>펜이 %1, %2에 있음</translation>
    </message>
    <message>
        <source>A text is open</source>
        <comment>screen reader</comment>
        <translation>텍스트 입력 중</translation>
    </message>
    <message>
        <source>A piece of %1 by %2 pixels floats at %3, %4</source>
        <comment>screen reader</comment>
        <translation>가로 %1, 세로 %2 픽셀인 조각이 %3, %4에 떠 있음</translation>
    </message>
    <message>
        <source>red</source>
        <comment>color</comment>
        <translation>빨간색</translation>
    </message>
    <message>
        <source>orange</source>
        <comment>color</comment>
        <translation>주황색</translation>
    </message>
    <message>
        <source>yellow</source>
        <comment>color</comment>
        <translation>노란색</translation>
    </message>
    <message>
        <source>green</source>
        <comment>color</comment>
        <translation>초록색</translation>
    </message>
    <message>
        <source>turquoise</source>
        <comment>color</comment>
        <translation>청록색</translation>
    </message>
    <message>
        <source>blue</source>
        <comment>color</comment>
        <translation>파란색</translation>
    </message>
    <message>
        <source>violet</source>
        <comment>color</comment>
        <translation>보라색</translation>
    </message>
    <message>
        <source>pink</source>
        <comment>color</comment>
        <translation>분홍색</translation>
    </message>
    <message>
        <source>black</source>
        <comment>color</comment>
        <translation>검은색</translation>
    </message>
    <message>
        <source>gray</source>
        <comment>color</comment>
        <translation>회색</translation>
    </message>
    <message>
        <source>white</source>
        <comment>color</comment>
        <translation>흰색</translation>
    </message>
    <message>
        <source>brown</source>
        <comment>color</comment>
        <translation>갈색</translation>
    </message>
    <message>
        <source>Bold</source>
        <comment>tool option</comment>
        <translation>굵게</translation>
    </message>
    <message>
        <source>Thin edge</source>
        <comment>tool option; around what is filled</comment>
        <translation>얇은 테두리</translation>
    </message>
    <message>
        <source>Thick edge</source>
        <comment>tool option; around what is filled</comment>
        <translation>두꺼운 테두리</translation>
    </message>
</context>
<context>
    <name>KORVA_ImageView_Dialog</name>
    <message>
        <source>Cancel</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>취소</translation>
    </message>
    <message>
        <source>Confirm</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>확인</translation>
    </message>
    <message>
        <source>The image is oversize</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>이미지가 너무 큽니다</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <comment>2.11.2.9;DIALOG_ICON_50</comment>
        <translation>파일을 열 수 없습니다</translation>
    </message>
    <message>
        <source>Picture load error.</source>
        <comment>2.16.5.9.4;FORM_CONTEXT_WITH_SCROLL_ICON1_20_WARP2</comment>
        <translation>이미지를 불러올 수 없습니다.</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>2.16.5.9.4;CST_5BUTTON</comment>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>KORVA_PasteLabel</name>
    <message>
        <source>Copy</source>
        <comment>2.11.1;MENU</comment>
        <translation>복사</translation>
    </message>
    <message>
        <source>Cut</source>
        <comment>2.11.1;MENU</comment>
        <translation>잘라내기</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>2.11.1;MENU</comment>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>Floating piece</source>
        <comment>menu of the piece</comment>
        <translation>떠 있는 조각</translation>
    </message>
    <message>
        <source>Turn left</source>
        <comment>menu of the piece</comment>
        <translation>왼쪽으로 돌리기</translation>
    </message>
    <message>
        <source>Turn right</source>
        <comment>menu of the piece</comment>
        <translation>오른쪽으로 돌리기</translation>
    </message>
    <message>
        <source>Flip</source>
        <comment>menu of the piece: left and right change places</comment>
        <translation>좌우 뒤집기</translation>
    </message>
    <message>
        <source>Double</source>
        <comment>menu of the piece: twice as wide and high</comment>
        <translation>두 배로</translation>
    </message>
    <message>
        <source>Halve</source>
        <comment>menu of the piece: half as wide and high</comment>
        <translation>절반으로</translation>
    </message>
    <message>
        <source>White is clear</source>
        <comment>menu of the piece: a switch</comment>
        <translation>흰색 투명</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>menu of the piece</comment>
        <translation>삭제</translation>
    </message>
</context>
<context>
    <name>KORVA_Preview_Dialog</name>
    <message>
        <source>Cancel</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>취소</translation>
    </message>
    <message>
        <source>Confirm</source>
        <comment>4.4.2.12;SOFTKEY_2BUTTON</comment>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>UTIL_FolderDialog</name>
    <message>
        <source>Up</source>
        <comment>FOLDER_DIALOG;BUTTON</comment>
        <translation>위로</translation>
    </message>
    <message>
        <source>Order</source>
        <comment>FOLDER_DIALOG;BUTTON</comment>
        <translation>정렬</translation>
    </message>
    <message>
        <source>By name</source>
        <comment>FOLDER_DIALOG;LIST</comment>
        <translation>이름순</translation>
    </message>
    <message>
        <source>Newest first</source>
        <comment>FOLDER_DIALOG;LIST</comment>
        <translation>최신순</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>FOLDER_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>UTIL_MessageBox</name>
    <message>
        <source>Cancel</source>
        <comment>message box</comment>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>UTIL_PickDialog</name>
    <message>
        <source>Open picture</source>
        <comment>PICK_DIALOG;TITLE</comment>
        <translation>이미지 열기</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>PICK_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>열기</translation>
    </message>
</context>
<context>
    <name>UTIL_PictureView</name>
    <message>
        <source>No pictures here</source>
        <comment>FOLDER_DIALOG;CONTEXT</comment>
        <translation>여기에 이미지가 없습니다</translation>
    </message>
    <message>
        <source>This folder cannot be read</source>
        <comment>FOLDER_DIALOG;CONTEXT</comment>
        <translation>이 폴더를 읽을 수 없습니다</translation>
    </message>
</context>
<context>
    <name>UTIL_SaveDialog</name>
    <message>
        <source>Save picture as</source>
        <comment>SAVE_DIALOG;TITLE</comment>
        <translation>이미지 저장</translation>
    </message>
    <message>
        <source>Save</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>저장</translation>
    </message>
    <message>
        <source>File name</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>취소</translation>
    </message>
    <message>
        <source>Replace</source>
        <comment>SAVE_DIALOG;SOFTKEY_2BUTTON</comment>
        <translation>바꾸기</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <comment>SAVE_DIALOG;DIALOG_ICON_50_WARP</comment>
        <translation>%1을(를) 바꾸시겠습니까?</translation>
    </message>
    <message>
        <source>Drawing</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>그림</translation>
    </message>
    <message>
        <source>Drawing %1</source>
        <comment>SAVE_DIALOG;CONTEXT</comment>
        <translation>그림 %1</translation>
    </message>
</context>
<context>
    <name>UTIL_ScrollBar</name>
    <message>
        <source>Scroll sideways</source>
        <comment>screen reader</comment>
        <translation>좌우 스크롤</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <comment>screen reader</comment>
        <translation>상하 스크롤</translation>
    </message>
</context>
<context>
    <name>UTIL_Veil</name>
    <message>
        <source>Dimmed for a dialog</source>
        <comment>screen reader</comment>
        <translation>대화 상자 때문에 어두워짐</translation>
    </message>
</context>
<context>
    <name>UTIL_WaitBox</name>
    <message>
        <source>Cancel</source>
        <comment>WAIT_BOX;SOFTKEY_1BUTTON</comment>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>desktop</name>
    <message>
        <source>Korva Pad</source>
        <comment>Name</comment>
        <translation>Korva 그림판</translation>
    </message>
    <message>
        <source>Drawing Pad</source>
        <comment>GenericName</comment>
        <translation>그림판</translation>
    </message>
    <message>
        <source>Draw and edit small pictures</source>
        <comment>Comment</comment>
        <translation>작은 이미지를 그리고 편집합니다</translation>
    </message>
    <message>
        <source>draw;paint;picture;bitmap;sketch;</source>
        <comment>Keywords; each ends with a semicolon</comment>
        <translation>그리기;그림;이미지;비트맵;스케치;낙서;</translation>
    </message>
    <message>
        <source>A drawing pad for small touch screens, which works as well with a mouse: pencil, line, rectangle, ellipse, eraser, text and a selection that can be moved, stretched and turned.</source>
        <comment>description</comment>
        <translation>작은 터치스크린을 위한 그림판으로, 마우스로도 편하게 쓸 수 있습니다. 연필, 직선, 사각형, 타원, 지우개, 텍스트가 있으며 선택 영역을 옮기고 늘이고 돌릴 수 있습니다.</translation>
    </message>
    <message>
        <source>It reads PNG, GIF, JPEG, BMP and WBMP pictures and writes PNG, JPEG and BMP.</source>
        <comment>description</comment>
        <translation>PNG, GIF, JPEG, BMP, WBMP 이미지를 읽고 PNG, JPEG, BMP로 저장합니다.</translation>
    </message>
</context>
<context>
    <name>pad::ColorPopup</name>
    <message>
        <source>Colors</source>
        <comment>color pop-up</comment>
        <translation>색상</translation>
    </message>
    <message>
        <source>Value of the color</source>
        <comment>color pop-up</comment>
        <translation>색상 값</translation>
    </message>
    <message>
        <source>#rrggbb, or red, green and blue from 0 to 255</source>
        <comment>color pop-up</comment>
        <translation>#rrggbb 또는 빨강, 초록, 파랑을 0에서 255까지</translation>
    </message>
    <message>
        <source>More ...</source>
        <comment>color pop-up; opens a dialog</comment>
        <translation>더 보기 ...</translation>
    </message>
</context>
<context>
    <name>pad::ColorsDialog</name>
    <message>
        <source>Plain</source>
        <comment>few colors</comment>
        <translation>단색</translation>
    </message>
    <message>
        <source>Dotted</source>
        <comment>few colors</comment>
        <translation>점묘</translation>
    </message>
</context>
<context>
    <name>pad::CommandLine</name>
    <message>
        <source>--scale takes a number from 1 to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>--scale에는 &apos;%2&apos;이(가) 아니라 1부터 %1까지의 숫자가 필요합니다</translation>
    </message>
    <message>
        <source>show every pixel N x N (default: as last time, or what suits the screen)</source>
        <comment>help</comment>
        <translation>픽셀 하나를 N x N으로 표시(기본값: 지난번과 같게 또는 화면에 맞게)</translation>
    </message>
    <message>
        <source>speak this language, like de or pt_BR</source>
        <comment>help</comment>
        <translation>이 언어 사용(예: de, pt_BR)</translation>
    </message>
    <message>
        <source>play a recording; no pointer is needed</source>
        <comment>help</comment>
        <translation>기록 재생(포인팅 장치 필요 없음)</translation>
    </message>
    <message>
        <source>write a recording of what is drawn</source>
        <comment>help</comment>
        <translation>그리는 과정을 기록</translation>
    </message>
    <message>
        <source>save the drawing after the replay, then exit</source>
        <comment>help</comment>
        <translation>재생 후 그림을 저장하고 종료</translation>
    </message>
    <message>
        <source>write the window as PNG, then exit</source>
        <comment>help</comment>
        <translation>창을 PNG로 저장하고 종료</translation>
    </message>
    <message>
        <source>keep no copy of what is not saved, and offer none</source>
        <comment>help</comment>
        <translation>저장하지 않은 그림의 사본을 보관하지도 제안하지도 않음</translation>
    </message>
    <message>
        <source>show this text</source>
        <comment>help</comment>
        <translation>이 도움말 표시</translation>
    </message>
    <message>
        <source>show the version</source>
        <comment>help</comment>
        <translation>버전 표시</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <comment>command line</comment>
        <translation>%1을(를) 두 번 지정했습니다</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <comment>command line</comment>
        <translation>%1에는 값을 지정할 수 없습니다</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; (--help lists them)</source>
        <comment>command line</comment>
        <translation>알 수 없는 옵션 &apos;%1&apos;(--help로 목록 표시)</translation>
    </message>
    <message>
        <source>%1 needs a value: %1 %2</source>
        <comment>command line</comment>
        <translation>%1에 값이 필요합니다: %1 %2</translation>
    </message>
    <message>
        <source>one picture at a time: &apos;%1&apos; and &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>이미지는 한 번에 하나만 열 수 있습니다: &apos;%1&apos;, &apos;%2&apos;</translation>
    </message>
    <message>
        <source>the picture&apos;s name is empty</source>
        <comment>command line</comment>
        <translation>이미지 이름이 비어 있습니다</translation>
    </message>
    <message>
        <source>Usage: korva-pad [options] [picture]</source>
        <comment>help</comment>
        <translation>사용법: korva-pad [옵션] [이미지]</translation>
    </message>
    <message>
        <source>A drawing pad: draws on a new canvas or on the picture given.</source>
        <comment>help</comment>
        <translation>그림판: 새 캔버스나 지정한 이미지에 그립니다.</translation>
    </message>
    <message>
        <source>Options:</source>
        <comment>help</comment>
        <translation>옵션:</translation>
    </message>
    <message>
        <source>--scale %1 does not fit a screen of %2 x %3; taking %4</source>
        <comment>command line</comment>
        <translation>--scale %1은(는) %2 x %3 화면에 맞지 않아 %4을(를) 사용합니다</translation>
    </message>
    <message>
        <source>there is no language &apos;%1&apos;; taking English (known: %2)</source>
        <comment>command line</comment>
        <translation>&apos;%1&apos; 언어가 없어 영어를 사용합니다(사용 가능: %2)</translation>
    </message>
    <message>
        <source>--undo-steps takes a number from 1 to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>--undo-steps에는 &apos;%2&apos;이(가) 아니라 1부터 %1까지의 숫자가 필요합니다</translation>
    </message>
    <message>
        <source>--working-size takes WxH, up to %1, not &apos;%2&apos;</source>
        <comment>command line</comment>
        <translation>--working-size에는 최대 %1의 너비x높이가 필요합니다. &apos;%2&apos;은(는) 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>--working-depth takes 16 or 24, not &apos;%1&apos;</source>
        <comment>command line</comment>
        <translation>--working-depth에는 16 또는 24가 필요합니다. &apos;%1&apos;은(는) 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>how many steps can be undone (default: 50)</source>
        <comment>help</comment>
        <translation>실행 취소할 수 있는 단계 수(기본값: 50)</translation>
    </message>
    <message>
        <source>fit opened pictures into this size (default: 352x288)</source>
        <comment>help</comment>
        <translation>연 그림을 이 크기에 맞추기(기본값: 352x288)</translation>
    </message>
    <message>
        <source>the colour depth of opened pictures (default: 16)</source>
        <comment>help</comment>
        <translation>연 그림의 색 깊이(기본값: 16)</translation>
    </message>
</context>
<context>
    <name>pad::Commands</name>
    <message>
        <source>&amp;New ...</source>
        <comment>menu</comment>
        <translation>새로 만들기(&amp;N) ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <comment>menu</comment>
        <translation>열기(&amp;O) ...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <comment>menu</comment>
        <translation>저장(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;as ...</source>
        <comment>menu</comment>
        <translation>새로 저장(&amp;A) ...</translation>
    </message>
    <message>
        <source>&amp;Keys ...</source>
        <comment>menu</comment>
        <translation>단축키(&amp;K) ...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <comment>menu</comment>
        <translation>끝내기(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Picture</source>
        <comment>menu</comment>
        <translation>이미지(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Insert stamp ...</source>
        <comment>menu</comment>
        <translation>스탬프 삽입(&amp;I) ...</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <comment>menu</comment>
        <translation>지우기(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Earlier drawings ...</source>
        <comment>menu</comment>
        <translation>이전 그림(&amp;E) ...</translation>
    </message>
    <message>
        <source>&amp;Delete picture ...</source>
        <comment>menu</comment>
        <translation>이미지 삭제(&amp;D) ...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <comment>menu</comment>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <comment>menu</comment>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <comment>menu</comment>
        <translation>다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <comment>menu</comment>
        <translation>잘라내기(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <comment>menu</comment>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <comment>menu</comment>
        <translation>붙여넣기(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <comment>menu</comment>
        <translation>삭제(&amp;D)</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <comment>menu</comment>
        <translation>모두 선택(&amp;A)</translation>
    </message>
    <message>
        <source>Cop&amp;y drawing</source>
        <comment>menu</comment>
        <translation>그림 복사(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <comment>menu</comment>
        <translation>도구(&amp;T)</translation>
    </message>
    <message>
        <source>Pe&amp;ncil</source>
        <comment>menu</comment>
        <translation>연필(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <comment>menu</comment>
        <translation>직선(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <comment>menu</comment>
        <translation>사각형(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Ellipse</source>
        <comment>menu</comment>
        <translation>타원(&amp;E)</translation>
    </message>
    <message>
        <source>Er&amp;aser</source>
        <comment>menu</comment>
        <translation>지우개(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <comment>menu</comment>
        <translation>텍스트(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <comment>menu</comment>
        <translation>선택(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Hand</source>
        <comment>menu</comment>
        <translation>손(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Color ...</source>
        <comment>menu</comment>
        <translation>색(&amp;C) ...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <comment>menu</comment>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <comment>menu</comment>
        <translation>확대(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <comment>menu</comment>
        <translation>축소(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Real size</source>
        <comment>menu</comment>
        <translation>실제 크기(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Fit to page</source>
        <comment>menu</comment>
        <translation>쪽에 맞춤(&amp;F)</translation>
    </message>
    <message>
        <source>Full s&amp;creen</source>
        <comment>menu</comment>
        <translation>전체 화면(&amp;C)</translation>
    </message>
    <message>
        <source>First option</source>
        <comment>menu</comment>
        <translation>첫 번째 옵션</translation>
    </message>
    <message>
        <source>Second option</source>
        <comment>menu</comment>
        <translation>두 번째 옵션</translation>
    </message>
    <message>
        <source>Third option</source>
        <comment>menu</comment>
        <translation>세 번째 옵션</translation>
    </message>
    <message>
        <source>Menu</source>
        <comment>keys</comment>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>Arrows</source>
        <comment>keys</comment>
        <translation>화살표 키</translation>
    </message>
    <message>
        <source>Move pen, piece</source>
        <comment>keys</comment>
        <translation>펜, 조각 이동</translation>
    </message>
    <message>
        <source>Shift+arrows</source>
        <comment>keys</comment>
        <translation>Shift+화살표</translation>
    </message>
    <message>
        <source>... by 10 pixels</source>
        <comment>keys</comment>
        <translation>... 10픽셀씩</translation>
    </message>
    <message>
        <source>Draw while held</source>
        <comment>keys</comment>
        <translation>누른 채 그리기</translation>
    </message>
    <message>
        <source>Pen down, up</source>
        <comment>keys</comment>
        <translation>펜 내리기/올리기</translation>
    </message>
    <message>
        <source>Put piece down</source>
        <comment>keys</comment>
        <translation>조각 내려놓기</translation>
    </message>
    <message>
        <source>Alt+arrows</source>
        <comment>keys</comment>
        <translation>Alt+화살표</translation>
    </message>
    <message>
        <source>Stretch piece</source>
        <comment>keys</comment>
        <translation>조각 늘이기</translation>
    </message>
    <message>
        <source>Turn piece</source>
        <comment>keys</comment>
        <translation>조각 돌리기</translation>
    </message>
    <message>
        <source>Drop piece</source>
        <comment>keys</comment>
        <translation>조각 버리기</translation>
    </message>
    <message>
        <source>End text</source>
        <comment>keys</comment>
        <translation>텍스트 끝내기</translation>
    </message>
    <message>
        <source>F&amp;inger pans</source>
        <comment>menu</comment>
        <translation>손가락으로 이동(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Fill</source>
        <comment>menu</comment>
        <translation>채우기(&amp;F)</translation>
    </message>
    <message>
        <source>Pic&amp;k color</source>
        <comment>menu</comment>
        <translation>색 추출(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;New from picture ...</source>
        <comment>menu</comment>
        <translation>이미지로 새로(&amp;F) ...</translation>
    </message>
    <message>
        <source>Save for a &amp;message ...</source>
        <comment>menu</comment>
        <translation>메시지용 저장(&amp;M) ...</translation>
    </message>
    <message>
        <source>Save in &amp;few colors ...</source>
        <comment>menu</comment>
        <translation>적은 색으로 저장(&amp;C) ...</translation>
    </message>
    <message>
        <source>&amp;Print ...</source>
        <comment>menu</comment>
        <translation>인쇄(&amp;P) ...</translation>
    </message>
</context>
<context>
    <name>pad::Copies</name>
    <message>
        <source>The printer does not take it.</source>
        <comment>print</comment>
        <translation>프린터가 받지 않습니다.</translation>
    </message>
</context>
<context>
    <name>pad::CopyDialog</name>
    <message>
        <source>Save</source>
        <comment>copy</comment>
        <translation>저장</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>copy</comment>
        <translation>취소</translation>
    </message>
    <message>
        <source>One moment ...</source>
        <comment>copy</comment>
        <translation>잠시만 ...</translation>
    </message>
    <message>
        <source>The picture does not fit.</source>
        <comment>copy</comment>
        <translation>그림이 들어가지 않습니다.</translation>
    </message>
</context>
<context>
    <name>pad::Display</name>
    <message>
        <source>there is no display</source>
        <comment>display</comment>
        <translation>디스플레이가 없습니다</translation>
    </message>
    <message>
        <source>cannot open display %1</source>
        <comment>display</comment>
        <translation>디스플레이 %1을(를) 열 수 없습니다</translation>
    </message>
    <message>
        <source>there is no screen</source>
        <comment>display</comment>
        <translation>화면이 없습니다</translation>
    </message>
    <message>
        <source>cannot show anything on &apos;%1&apos;: %2</source>
        <comment>display</comment>
        <translation>&apos;%1&apos;에 아무것도 표시할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1: the toolkit&apos;s plugin for Wayland (%2) is not installed</source>
        <comment>display; %1: its name, %2: a package</comment>
        <translation>%1: 툴킷의 Wayland 플러그인(%2)이 설치되어 있지 않습니다</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <comment>display; names of displays</comment>
        <translation>%1 또는 %2</translation>
    </message>
</context>
<context>
    <name>pad::Documents</name>
    <message>
        <source>No copy of the drawing can be kept. Give it up?</source>
        <comment>changes</comment>
        <translation>그림의 사본을 보관할 수 없습니다. 그림을 버리시겠습니까?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>changes</comment>
        <translation>취소</translation>
    </message>
    <message>
        <source>Give it up</source>
        <comment>changes</comment>
        <translation>버리기</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>changes</comment>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <comment>changes</comment>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Save changes to drawing before closing?</source>
        <comment>changes</comment>
        <translation>닫기 전에 그림의 변경 사항을 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Black and white</source>
        <comment>canvas type</comment>
        <translation>흑백</translation>
    </message>
    <message numerus="yes">
        <source>%Ln colors</source>
        <comment>canvas type</comment>
        <translation>
            <numerusform>%Ln색</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>canvas type</comment>
        <translation>취소</translation>
    </message>
    <message>
        <source>How many colors?</source>
        <comment>canvas type</comment>
        <translation>몇 색으로 할까요?</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>saving</comment>
        <translation>저장하지 못함: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>saving</comment>
        <translation>확인</translation>
    </message>
    <message>
        <source>Save changes to drawing before creating?</source>
        <comment>changes</comment>
        <translation>새로 만들기 전에 그림의 변경 사항을 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Save changes to drawing before opening?</source>
        <comment>changes</comment>
        <translation>열기 전에 그림의 변경 사항을 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>%1 was changed since it was opened: replacing it would lose that.</source>
        <comment>saving</comment>
        <translation>%1은(는) 연 뒤에 변경되었습니다. 바꾸면 그 변경 사항이 사라집니다.</translation>
    </message>
    <message>
        <source>Save as new</source>
        <comment>saving</comment>
        <translation>새 파일로 저장</translation>
    </message>
    <message>
        <source>Replace</source>
        <comment>saving</comment>
        <translation>바꾸기</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>saving</comment>
        <translation>취소</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>deleting</comment>
        <translation>취소</translation>
    </message>
    <message>
        <source>Move %1 to the trash?</source>
        <comment>deleting</comment>
        <translation>%1을(를) 휴지통으로 옮기시겠습니까?</translation>
    </message>
    <message>
        <source>To the trash</source>
        <comment>deleting</comment>
        <translation>휴지통으로 이동</translation>
    </message>
    <message>
        <source>There is no trash for %1. Delete it for good?</source>
        <comment>deleting</comment>
        <translation>%1에 쓸 수 있는 휴지통이 없습니다. 영구히 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>deleting</comment>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Not deleted: %1</source>
        <comment>deleting</comment>
        <translation>삭제하지 못함: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>deleting</comment>
        <translation>확인</translation>
    </message>
    <message>
        <source>%1 pictures can only be opened: the drawing of %2 pixels needs a new file.</source>
        <comment>saving; %1: &apos;GIF&apos;, %2: &apos;300 × 200&apos;</comment>
        <translation>%1 이미지는 열 수만 있습니다. %2 픽셀 그림은 새 파일에 저장해야 합니다.</translation>
    </message>
    <message>
        <source>%1 has %2 pixels and the drawing %3: replacing it would lose the rest.</source>
        <comment>saving; %1: a file, %2 and %3: &apos;300 × 200&apos;</comment>
        <translation>%1은(는) %2 픽셀이고 그림은 %3 픽셀입니다. 바꾸면 나머지가 사라집니다.</translation>
    </message>
    <message>
        <source>%1 has more colors than the drawing of %2 pixels: replacing it would lose them.</source>
        <comment>saving; %1: a file, %2: &apos;300 × 200&apos;</comment>
        <translation>%1에는 %2 픽셀 그림보다 색이 더 많습니다. 바꾸면 그 색이 사라집니다.</translation>
    </message>
    <message>
        <source>New from picture</source>
        <comment>pick dialog</comment>
        <translation>이미지로 새로 만들기</translation>
    </message>
    <message>
        <source>%1 was saved: %2</source>
        <comment>saving; %1: a file, %2: &apos;29.6 kB&apos;</comment>
        <translation>%1 저장됨: %2</translation>
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
        <translation>디스크가 가득 찼습니다.</translation>
    </message>
    <message>
        <source>No permission to write in %1.</source>
        <comment>saving</comment>
        <translation>%1에 쓸 권한이 없습니다.</translation>
    </message>
    <message>
        <source>%1 is on a disk that can only be read.</source>
        <comment>saving</comment>
        <translation>%1은(는) 읽기 전용 디스크에 있습니다.</translation>
    </message>
    <message>
        <source>The disk reports an error.</source>
        <comment>saving</comment>
        <translation>디스크에서 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <comment>saving</comment>
        <translation>%1 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>There is a folder of this name.</source>
        <comment>saving</comment>
        <translation>같은 이름의 폴더가 있습니다.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <comment>saving</comment>
        <translation>이름이 너무 깁니다.</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2</source>
        <comment>command line</comment>
        <translation>&apos;%1&apos;에 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot open &apos;%1&apos;: %2</source>
        <comment>command line</comment>
        <translation>&apos;%1&apos;을(를) 열 수 없습니다: %2</translation>
    </message>
    <message>
        <source>GIF pictures are only read</source>
        <comment>command line</comment>
        <translation>GIF 이미지는 읽을 수만 있습니다</translation>
    </message>
    <message>
        <source>Saving drawing</source>
        <comment>saving</comment>
        <translation>그림을 저장하는 중</translation>
    </message>
</context>
<context>
    <name>pad::EarlierDialog</name>
    <message>
        <source>Earlier drawings</source>
        <comment>earlier drawings</comment>
        <translation>이전 그림</translation>
    </message>
    <message>
        <source>None was kept so far.</source>
        <comment>earlier drawings</comment>
        <translation>아직 보관된 그림이 없습니다.</translation>
    </message>
    <message>
        <source>Bring it back</source>
        <comment>earlier drawings</comment>
        <translation>되살리기</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>earlier drawings</comment>
        <translation>취소</translation>
    </message>
    <message>
        <source>today at %1</source>
        <comment>time, in a list and in a sentence; %1: &apos;9:30&apos;</comment>
        <translation>오늘 %1</translation>
    </message>
    <message>
        <source>yesterday at %1</source>
        <comment>time, in a list and in a sentence; %1: &apos;9:30&apos;</comment>
        <translation>어제 %1</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>time, in a list and in a sentence; %1: a date, %2: &apos;9:30&apos;</comment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>pad::KeysDialog</name>
    <message>
        <source>Keys</source>
        <comment>keys</comment>
        <translation>단축키</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>keys</comment>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Buttons</source>
        <comment>keys; title, of the tool bar&apos;s buttons</comment>
        <translation>단추</translation>
    </message>
</context>
<context>
    <name>pad::PadTools</name>
    <message>
        <source>Fill</source>
        <comment>tool</comment>
        <translation>채우기</translation>
    </message>
    <message>
        <source>Pick color</source>
        <comment>tool</comment>
        <translation>색 추출</translation>
    </message>
    <message>
        <source>%1 points</source>
        <comment>tool option</comment>
        <translation>%1포인트</translation>
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
        <translation>메뉴</translation>
    </message>
    <message>
        <source>Drawing[*] - Korva</source>
        <comment>window title</comment>
        <translation>그림[*] - Korva</translation>
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
        <translation>&apos;%1&apos; 질문에 대한 답이 없습니다</translation>
    </message>
    <message>
        <source>no picture is named to open</source>
        <comment>replay</comment>
        <translation>열 이미지를 지정하지 않았습니다</translation>
    </message>
    <message>
        <source>the drawing has no name to be saved under</source>
        <comment>replay</comment>
        <translation>그림을 저장할 이름이 없습니다</translation>
    </message>
</context>
<context>
    <name>pad::Player</name>
    <message>
        <source>the tool has no option %1</source>
        <comment>replay</comment>
        <translation>이 도구에는 옵션 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>the drawing could not be saved</source>
        <comment>replay</comment>
        <translation>그림을 저장할 수 없었습니다</translation>
    </message>
</context>
<context>
    <name>pad::Preview</name>
    <message>
        <source>Usage: korva-preview [options] PICTURE</source>
        <comment>help</comment>
        <translation>사용법: korva-preview [옵션] PICTURE</translation>
    </message>
    <message>
        <source>Shows a picture to be confirmed or cancelled: prints 900 and exits with 0 when it was
confirmed, prints 902 and exits with 1 when it was cancelled.</source>
        <comment>help</comment>
        <translation>이미지를 보여 주고 확인 또는 취소하게 합니다. 확인하면 900을 출력하고 0으로,
취소하면 902를 출력하고 1로 종료합니다.</translation>
    </message>
    <message>
        <source>which picture? korva-preview PICTURE</source>
        <comment>command line</comment>
        <translation>어떤 이미지입니까? korva-preview PICTURE</translation>
    </message>
</context>
<context>
    <name>pad::PrintDialog</name>
    <message>
        <source>Printer</source>
        <comment>print</comment>
        <translation>프린터</translation>
    </message>
</context>
<context>
    <name>pad::Recording</name>
    <message>
        <source>a number</source>
        <comment>recording; what a command needs</comment>
        <translation>숫자</translation>
    </message>
    <message>
        <source>a tool</source>
        <comment>recording; what a command needs</comment>
        <translation>도구</translation>
    </message>
    <message>
        <source>a zoom</source>
        <comment>recording; what a command needs</comment>
        <translation>배율</translation>
    </message>
    <message>
        <source>a canvas type</source>
        <comment>recording; what a command needs</comment>
        <translation>캔버스 종류</translation>
    </message>
    <message>
        <source>a colour #rrggbb</source>
        <comment>recording; what a command needs</comment>
        <translation>색 #rrggbb</translation>
    </message>
    <message>
        <source>a key</source>
        <comment>recording; what a command needs</comment>
        <translation>키</translation>
    </message>
    <message>
        <source>a text</source>
        <comment>recording; what a command needs</comment>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>a file name</source>
        <comment>recording; what a command needs</comment>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <comment>recording</comment>
        <translation>알 수 없는 명령 &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <comment>recording</comment>
        <translation>&apos;%1&apos;에 필요한 것: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2, not &apos;%3&apos;</source>
        <comment>recording</comment>
        <translation>&apos;%1&apos;에 필요한 것: &apos;%3&apos;이(가) 아니라 %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is too much for &apos;%2&apos;</source>
        <comment>recording</comment>
        <translation>&apos;%1&apos;은(는) &apos;%2&apos;에 필요 없습니다</translation>
    </message>
    <message>
        <source>this is not UTF-8 text</source>
        <comment>recording</comment>
        <translation>UTF-8 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>cannot read &apos;%1&apos;: %2</source>
        <comment>recording</comment>
        <translation>&apos;%1&apos;을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>a blank is missing at &apos;%1&apos;</source>
        <comment>recording</comment>
        <translation>&apos;%1&apos;에 공백이 빠졌습니다</translation>
    </message>
    <message>
        <source>unknown escape &apos;\%1&apos;</source>
        <comment>recording</comment>
        <translation>알 수 없는 이스케이프 &apos;\%1&apos;</translation>
    </message>
    <message>
        <source>the closing quote is missing</source>
        <comment>recording</comment>
        <translation>닫는 따옴표가 없습니다</translation>
    </message>
    <message>
        <source>a number of steps</source>
        <comment>recording; what a command needs</comment>
        <translation>단계 수</translation>
    </message>
</context>
<context>
    <name>pad::Recovery</name>
    <message>
        <source>Older ones are among the earlier drawings.</source>
        <comment>recovery</comment>
        <translation>더 오래된 것은 이전 그림에 있습니다.</translation>
    </message>
    <message>
        <source>Bring it back</source>
        <comment>recovery</comment>
        <translation>되살리기</translation>
    </message>
    <message>
        <source>Not now</source>
        <comment>recovery</comment>
        <translation>나중에</translation>
    </message>
    <message>
        <source>Save changes to drawing before bringing another one back?</source>
        <comment>recovery</comment>
        <translation>다른 그림을 되살리기 전에 그림의 변경 사항을 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>No copy of the drawing can be kept: %1</source>
        <comment>recovery</comment>
        <translation>그림의 사본을 보관할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>recovery</comment>
        <translation>확인</translation>
    </message>
    <message>
        <source>A drawing of %1 was not saved.</source>
        <comment>recovery; %1: &apos;today at 9:30&apos;</comment>
        <translation>저장하지 않은 그림이 있습니다(%1).</translation>
    </message>
    <message>
        <source>A drawing of %1 on %2 was not saved.</source>
        <comment>recovery; %1: &apos;today at 9:30&apos;, %2: a file</comment>
        <translation>%2에 그린 그림이 저장되지 않았습니다(%1).</translation>
    </message>
</context>
<context>
    <name>pad::StatusLine</name>
    <message>
        <source>Tool</source>
        <comment>status line</comment>
        <translation>도구</translation>
    </message>
    <message>
        <source>Picture size</source>
        <comment>status line</comment>
        <translation>이미지 크기</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>status line</comment>
        <translation>배율</translation>
    </message>
    <message>
        <source>Position</source>
        <comment>status line</comment>
        <translation>위치</translation>
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
        <translation>상태</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>status line, spoken</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Size</source>
        <comment>status line; of what is dragged</comment>
        <translation>크기</translation>
    </message>
</context>
</TS>
