<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi">
<context>
    <name></name>
    <message id="ID_CameraPage_1">
        <source></source>
        <translation>1. Kiểm tra thiết bị đã được cắm và chọn trong danh sách.</translation>
    </message>
    <message id="ID_CameraPage_2">
        <source></source>
        <translation>2. Đóng các chương trình khác đang dùng camera.</translation>
    </message>
    <message id="ID_CameraPage_3">
        <source></source>
        <translation>3. Mở nắp che ống kính hoặc bật camera bằng phím.</translation>
    </message>
    <message id="ID_CameraPage_4">
        <source></source>
        <translation>4. Cho phép dùng camera trong cài đặt quyền riêng tư.</translation>
    </message>
    <message id="ID_CameraPage_5">
        <source></source>
        <translation>5. Khởi động lại máy tính hoặc thử thiết bị khác.</translation>
    </message>
    <message id="ID_CameraPage_Camera">
        <source></source>
        <translation>Camera:</translation>
    </message>
    <message id="ID_CameraPage_CameraDisabled">
        <source></source>
        <translation>Camera đang tắt</translation>
    </message>
    <message id="ID_CameraPage_CannotSee">
        <source></source>
        <translation>Không thấy</translation>
    </message>
    <message id="ID_CameraPage_ClickHere">
        <source></source>
        <translation>Không thấy mình? Nhấn vào đây</translation>
    </message>
    <message id="ID_CameraPage_DisabledWillMakeCameraUnusable">
        <source></source>
        <translation>Camera đang tắt. Hãy chọn camera ở đây hoặc bật lên.</translation>
    </message>
    <message id="ID_CameraPage_No">
        <source></source>
        <translation>Không thấy</translation>
    </message>
    <message id="ID_CameraPage_NoCameraImageWasDetected">
        <source></source>
        <translation>Camera không có hình</translation>
    </message>
    <message id="ID_CameraPage_NotDetected">
        <source></source>
        <translation>Mục này chưa được trả lời</translation>
    </message>
    <message id="ID_CameraPage_Yes">
        <source></source>
        <translation>Có, tôi thấy</translation>
    </message>
    <message id="ID_CameraPage_choseNo">
        <source></source>
        <translation>Bạn không thấy mình</translation>
    </message>
    <message id="ID_Camera_Check">
        <source></source>
        <translation>Camera</translation>
    </message>
    <message id="ID_CheckResultPage_Abnormal">
        <source></source>
        <translation>Không đạt</translation>
    </message>
    <message id="ID_CheckResultPage_CheckEquipmentAndRetest">
        <source></source>
        <translation>Hãy sửa và thử lại.</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentAbnormal">
        <source></source>
        <translation>Có sự cố</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentNormal">
        <source></source>
        <translation>Mọi thứ đều tốt</translation>
    </message>
    <message id="ID_CheckResultPage_Headphone">
        <source></source>
        <translation>Loa</translation>
    </message>
    <message id="ID_CheckResultPage_Normal">
        <source></source>
        <translation>Đạt</translation>
    </message>
    <message id="ID_CheckResultPage_OK">
        <source></source>
        <translation>Xin mời vào lớp.</translation>
    </message>
    <message id="ID_CheckResultPage_Redetect">
        <source></source>
        <translation>Thử lại</translation>
    </message>
    <message id="ID_CheckResultPage_System">
        <source></source>
        <translation>Mạng</translation>
    </message>
    <message id="ID_ContentPage_NotFinishedIfLeave">
        <source></source>
        <translation>Chưa kiểm tra xong hệ thống. Bạn có muốn thoát không?</translation>
    </message>
    <message id="ID_Engine_BuiltInResponder">
        <source></source>
        <translation>Chưa đo: chưa có máy chủ</translation>
    </message>
    <message id="ID_Engine_Camera_Absent">
        <source></source>
        <translation>Không tìm thấy camera.
Hãy cắm camera vào máy tính này.</translation>
    </message>
    <message id="ID_Engine_Camera_Black">
        <source></source>
        <translation>Hình bị đen.
Hãy mở nắp che ống kính hoặc bật đèn.</translation>
    </message>
    <message id="ID_Engine_Camera_Busy">
        <source></source>
        <translation>Chương trình khác đang dùng camera.
Hãy đóng chương trình đó.</translation>
    </message>
    <message id="ID_Engine_Camera_BusyBy">
        <source></source>
        <translation>%1 đang dùng camera.
Hãy đóng chương trình này.</translation>
    </message>
    <message id="ID_Engine_Camera_Denied">
        <source></source>
        <translation>Hệ thống từ chối truy cập camera.
Hãy cho phép trong cài đặt quyền riêng tư của hệ thống.</translation>
    </message>
    <message id="ID_Engine_Camera_Failed">
        <source></source>
        <translation>Camera không hoạt động.
Hãy rút ra rồi cắm lại, hoặc chọn camera khác.</translation>
    </message>
    <message id="ID_Engine_Camera_Hung">
        <source></source>
        <translation>Camera không phản hồi.
Hãy rút ra rồi cắm lại, hoặc khởi động lại máy tính.</translation>
    </message>
    <message id="ID_Engine_Camera_NotBuilt">
        <source></source>
        <translation>Chương trình này không dùng được camera trên hệ thống này.
Hãy thử camera trong chương trình khác.</translation>
    </message>
    <message id="ID_Engine_Camera_ServerLost">
        <source></source>
        <translation>Dịch vụ camera không chạy.
Hãy đợi một lát hoặc khởi động lại máy.</translation>
    </message>
    <message id="ID_Engine_Camera_Stalled">
        <source></source>
        <translation>Camera không gửi hình.
Hãy rút ra rồi cắm lại, hoặc chọn camera khác.</translation>
    </message>
    <message id="ID_Engine_Camera_Starting">
        <source></source>
        <translation>Camera đang khởi động…</translation>
    </message>
    <message id="ID_Engine_Camera_Unplugged">
        <source></source>
        <translation>Camera đã bị rút ra.
Hãy cắm lại hoặc chọn camera khác.</translation>
    </message>
    <message id="ID_Engine_Camera_Unreadable">
        <source></source>
        <translation>Không hiển thị được hình từ camera.
Hãy chọn camera hoặc định dạng khác.</translation>
    </message>
    <message id="ID_Engine_File_BadEnd">
        <source></source>
        <translation>trên Windows, tên không được kết thúc bằng dấu chấm hoặc dấu cách</translation>
    </message>
    <message id="ID_Engine_File_BadLetter">
        <source></source>
        <translation>trên Windows, tên không được chứa &lt; &gt; : " | ? * hoặc ký tự điều khiển</translation>
    </message>
    <message id="ID_Engine_File_DeadLink">
        <source></source>
        <translation>đó là một liên kết không trỏ tới đâu cả</translation>
    </message>
    <message id="ID_Engine_File_DeviceName">
        <source></source>
        <translation>%1 là tên của một thiết bị trên Windows</translation>
    </message>
    <message id="ID_Engine_File_DiskSilent">
        <source></source>
        <translation>ổ đĩa không phản hồi</translation>
    </message>
    <message id="ID_Engine_File_ForeignLink">
        <source></source>
        <translation>đó là liên kết của một người dùng khác</translation>
    </message>
    <message id="ID_Engine_File_LockHeld">
        <source></source>
        <translation>một chương trình khác đang giữ tệp khóa %1</translation>
    </message>
    <message id="ID_Engine_File_LockNotMade">
        <source></source>
        <translation>không tạo được tệp khóa</translation>
    </message>
    <message id="ID_Engine_File_LockNotRegular">
        <source></source>
        <translation>tệp khóa %1 không phải là tệp thường</translation>
    </message>
    <message id="ID_Engine_File_NoFolder">
        <source></source>
        <translation>không tạo được thư mục</translation>
    </message>
    <message id="ID_Engine_File_NotMade">
        <source></source>
        <translation>không tạo được nội dung mới; ổ đĩa có đầy không?</translation>
    </message>
    <message id="ID_Engine_File_NotRegular">
        <source></source>
        <translation>đó không phải là tệp thường</translation>
    </message>
    <message id="ID_Engine_File_TooLarge">
        <source></source>
        <translation>tệp lớn hơn %1 MiB</translation>
    </message>
    <message id="ID_Engine_File_TooManyChanges">
        <source></source>
        <translation>có quá nhiều thay đổi đang chờ ghi ra ổ đĩa</translation>
    </message>
    <message id="ID_Engine_Json_Document">
        <source></source>
        <translation>tài liệu phải là một đối tượng</translation>
    </message>
    <message id="ID_Engine_Json_Empty">
        <source></source>
        <translation>không được để trống</translation>
    </message>
    <message id="ID_Engine_Json_Flag">
        <source></source>
        <translation>phải là true hoặc false</translation>
    </message>
    <message id="ID_Engine_Json_Invalid">
        <source></source>
        <translation>không phải JSON hợp lệ: %1</translation>
    </message>
    <message id="ID_Engine_Json_List">
        <source></source>
        <translation>phải là một danh sách</translation>
    </message>
    <message id="ID_Engine_Json_Missing">
        <source></source>
        <translation>bị thiếu</translation>
    </message>
    <message id="ID_Engine_Json_Number">
        <source></source>
        <translation>phải là một số</translation>
    </message>
    <message id="ID_Engine_Json_Object">
        <source></source>
        <translation>phải là một đối tượng</translation>
    </message>
    <message id="ID_Engine_Json_ShortList">
        <source></source>
        <translation>phải là danh sách có tối đa %1 phần tử</translation>
    </message>
    <message id="ID_Engine_Json_ShortText">
        <source></source>
        <translation>phải là văn bản có tối đa %1 ký tự</translation>
    </message>
    <message id="ID_Engine_Json_Text">
        <source></source>
        <translation>phải là văn bản</translation>
    </message>
    <message id="ID_Engine_Json_Twice">
        <source></source>
        <translation>xuất hiện hai lần</translation>
    </message>
    <message id="ID_Engine_Json_Unknown">
        <source></source>
        <translation>không phải là trường hợp lệ ở đây</translation>
    </message>
    <message id="ID_Engine_Json_WholeNumber">
        <source></source>
        <translation>phải là số nguyên từ %1 đến %2</translation>
    </message>
    <message id="ID_Engine_Json_Word">
        <source></source>
        <translation>phải là một trong các từ: %1</translation>
    </message>
    <message id="ID_Engine_Json_WordList">
        <source></source>
        <translation>phải là danh sách gồm các từ: %1</translation>
    </message>
    <message id="ID_Engine_NoCamera">
        <source></source>
        <translation>Không có camera</translation>
    </message>
    <message id="ID_Engine_NoMicrophone">
        <source></source>
        <translation>Không có micrô</translation>
    </message>
    <message id="ID_Engine_NoSpeaker">
        <source></source>
        <translation>Không tìm thấy loa</translation>
    </message>
    <message id="ID_Engine_NoSpeakerSelected">
        <source></source>
        <translation>Chưa chọn loa</translation>
    </message>
    <message id="ID_Engine_NotConnected">
        <source></source>
        <translation>Chưa kết nối</translation>
    </message>
    <message id="ID_Engine_Scenario_Base">
        <source></source>
        <translation>phải là tên của một kịch bản có sẵn</translation>
    </message>
    <message id="ID_Engine_Scenario_Levels">
        <source></source>
        <translation>phải là [mili giây, mức âm]: tăng dần từ 0, và mức âm từ 0 đến 1</translation>
    </message>
    <message id="ID_Engine_Scenario_NoDevice">
        <source></source>
        <translation>không chỉ đến %1 nào của kịch bản này</translation>
    </message>
    <message id="ID_Engine_Scenario_NoVolume">
        <source></source>
        <translation>camera không có âm lượng</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRead">
        <source></source>
        <translation>không đọc được: %1</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRegular">
        <source></source>
        <translation>không phải là tệp thường; hãy chỉ định một tệp kịch bản</translation>
    </message>
    <message id="ID_Engine_Scenario_SameId">
        <source></source>
        <translation>phải là duy nhất trong danh sách</translation>
    </message>
    <message id="ID_Engine_Scenario_TooLarge">
        <source></source>
        <translation>lớn hơn 1 MiB; hãy chỉ định một tệp kịch bản</translation>
    </message>
    <message id="ID_Engine_Scenario_TooManyDevices">
        <source></source>
        <translation>nhiều hơn %1 thiết bị khác nhau thuộc loại này; hãy cắm một thiết bị đã có trước đó</translation>
    </message>
    <message id="ID_Engine_Scenario_Unknown">
        <source></source>
        <translation>không có tệp này, cũng không có kịch bản có sẵn nào tên như vậy (hiện có: %1)</translation>
    </message>
    <message id="ID_Engine_SoundNotBuilt">
        <source></source>
        <translation>Không có âm thanh: chưa hỗ trợ hệ thống</translation>
    </message>
    <message id="ID_Engine_SoundServerLost">
        <source></source>
        <translation>Dịch vụ âm thanh không chạy</translation>
    </message>
    <message id="ID_Engine_SoundServerSilent">
        <source></source>
        <translation>Dịch vụ âm thanh không phản hồi</translation>
    </message>
    <message id="ID_Engine_TelephoneQuality">
        <source></source>
        <translation>%1 (chất lượng điện thoại)</translation>
    </message>
    <message id="ID_HeadsetPage_2">
        <source></source>
        <translation>2. Tăng âm lượng và kiểm tra loa không bị tắt tiếng.</translation>
    </message>
    <message id="ID_HeadsetPage_3">
        <source></source>
        <translation>3. Cắm chặt giắc tai nghe hoặc kết nối lại Bluetooth.</translation>
    </message>
    <message id="ID_HeadsetPage_4">
        <source></source>
        <translation>4. Chọn cùng thiết bị trong cài đặt âm thanh của hệ thống.</translation>
    </message>
    <message id="ID_HeadsetPage_Bubble">
        <source></source>
        <translation>Bong bóng</translation>
    </message>
    <message id="ID_HeadsetPage_CanHear">
        <source></source>
        <translation>Có, nghe được</translation>
    </message>
    <message id="ID_HeadsetPage_CanNotHear">
        <source></source>
        <translation>Không nghe được</translation>
    </message>
    <message id="ID_HeadsetPage_ChoseWrong">
        <source></source>
        <translation>Chưa chọn đúng âm thanh</translation>
    </message>
    <message id="ID_HeadsetPage_ClickHere">
        <source></source>
        <translation>Không nghe thấy âm thanh? Nhấn vào đây</translation>
    </message>
    <message id="ID_HeadsetPage_Doorbell">
        <source></source>
        <translation>Chuông cửa</translation>
    </message>
    <message id="ID_HeadsetPage_Piano">
        <source></source>
        <translation>Piano</translation>
    </message>
    <message id="ID_HeadsetPage_Play">
        <source></source>
        <translation>Phát</translation>
    </message>
    <message id="ID_HeadsetPage_PlayAgain">
        <source></source>
        <translation>Phát lại</translation>
    </message>
    <message id="ID_HeadsetPage_Playing">
        <source></source>
        <translation>Nghe…</translation>
    </message>
    <message id="ID_HeadsetPage_PleaseSelectTheAnswer">
        <source></source>
        <translation>Bạn nghe thấy âm thanh nào?</translation>
    </message>
    <message id="ID_HeadsetPage_Saxophone">
        <source></source>
        <translation>Saxophone</translation>
    </message>
    <message id="ID_HeadsetPage_Seagull">
        <source></source>
        <translation>Hải âu</translation>
    </message>
    <message id="ID_HeadsetPage_Shutter">
        <source></source>
        <translation>Chụp ảnh</translation>
    </message>
    <message id="ID_HeadsetPage_Speaker">
        <source></source>
        <translation>Loa:</translation>
    </message>
    <message id="ID_HeadsetPage_Thunder">
        <source></source>
        <translation>Sấm</translation>
    </message>
    <message id="ID_HeadsetPage_Tip">
        <source></source>
        <translation>Nhấn nút phát, lắng nghe và chọn âm thanh mà bạn nghe được.</translation>
    </message>
    <message id="ID_HeadsetPage_Typing">
        <source></source>
        <translation>Gõ phím</translation>
    </message>
    <message id="ID_HeadsetPage_choseNo">
        <source></source>
        <translation>Bạn không nghe thấy âm thanh</translation>
    </message>
    <message id="ID_HeadsetPage_play">
        <source></source>
        <translation>Phát</translation>
    </message>
    <message id="ID_HeadsetPage_sound0">
        <source></source>
        <translation>Âm 1</translation>
    </message>
    <message id="ID_HeadsetPage_sound1">
        <source></source>
        <translation>Âm 2</translation>
    </message>
    <message id="ID_HeadsetPage_sound2">
        <source></source>
        <translation>Âm 3</translation>
    </message>
    <message id="ID_HeadsetPage_sound3">
        <source></source>
        <translation>Âm 4</translation>
    </message>
    <message id="ID_Host_Changes">
        <source></source>
        <translation>Thay đổi</translation>
    </message>
    <message id="ID_Host_Changes_None">
        <source></source>
        <translation>Không có gì thay đổi kể từ đó.</translation>
    </message>
    <message id="ID_Host_Check_Loop">
        <source></source>
        <translation>Vòng âm thanh</translation>
    </message>
    <message id="ID_Host_Config_BadLine">
        <source></source>
        <translation>%1: mỗi dòng phải có dạng KEY=VALUE, ví dụ server=HOST, hoặc là chú thích sau dấu chấm phẩy; hãy sửa tại đó</translation>
    </message>
    <message id="ID_Host_Config_BadValue">
        <source></source>
        <translation>%1: %2=%3: cần %4; hãy sửa tại đó</translation>
    </message>
    <message id="ID_Host_Config_BadVariable">
        <source></source>
        <translation>%1=%2: cần %3</translation>
    </message>
    <message id="ID_Host_Config_UnknownKey">
        <source></source>
        <translation>%1: không có khóa %2; các khóa là server, report-url và report-token-file</translation>
    </message>
    <message id="ID_Host_Config_Unreadable">
        <source></source>
        <translation>%1: không đọc được như một tệp cấu hình; hãy đặt vào đó một tệp văn bản có các dòng như server=HOST, hoặc xóa nó</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerLost">
        <source></source>
        <translation>Dịch vụ camera không chạy</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerSilent">
        <source></source>
        <translation>Dịch vụ camera không phản hồi</translation>
    </message>
    <message id="ID_Host_Devices_Cameras">
        <source></source>
        <translation>Camera</translation>
    </message>
    <message id="ID_Host_Devices_Microphones">
        <source></source>
        <translation>Micrô</translation>
    </message>
    <message id="ID_Host_Devices_None">
        <source></source>
        <translation>không tìm thấy</translation>
    </message>
    <message id="ID_Host_Devices_NotBuilt">
        <source></source>
        <translation>chương trình này được dựng không có thiết bị thật (ENVCHECK_DEVICES): hãy dùng --platform scripted</translation>
    </message>
    <message id="ID_Host_Devices_Speakers">
        <source></source>
        <translation>Loa</translation>
    </message>
    <message id="ID_Host_Display_Gone">
        <source></source>
        <translation>màn hình đã mất kết nối nên việc kiểm tra cũng dừng: máy chủ X hoặc trình tổng hợp Wayland đã kết thúc; hãy bắt đầu kiểm tra lại</translation>
    </message>
    <message id="ID_Host_Display_None">
        <source></source>
        <translation>không có màn hình để mở phần kiểm tra: hãy khởi động từ phiên màn hình nền hoặc bằng xvfb-run</translation>
    </message>
    <message id="ID_Host_Display_NotOpened">
        <source></source>
        <translation>không mở được màn hình %1: hãy khởi động phần kiểm tra từ phiên màn hình nền hoặc bằng xvfb-run</translation>
    </message>
    <message id="ID_Host_Exit_AllPassed">
        <source></source>
        <translation>đạt toàn bộ</translation>
    </message>
    <message id="ID_Host_Exit_BadInput">
        <source></source>
        <translation>không dùng được tệp đã nêu</translation>
    </message>
    <message id="ID_Host_Exit_CannotWrite">
        <source></source>
        <translation>không ghi được tệp hoặc thư mục</translation>
    </message>
    <message id="ID_Host_Exit_LeftEarly">
        <source></source>
        <translation>người dùng rời đi trước khi xong</translation>
    </message>
    <message id="ID_Host_Exit_PutOut">
        <source></source>
        <translation>lớp học đã kết thúc phiên</translation>
    </message>
    <message id="ID_Host_Exit_SomeFailed">
        <source></source>
        <translation>có mục kiểm tra không đạt</translation>
    </message>
    <message id="ID_Host_Exit_TourProblems">
        <source></source>
        <translation>phần dạo qua các bước phát hiện lỗi</translation>
    </message>
    <message id="ID_Host_Exit_Unavailable">
        <source></source>
        <translation>thiếu màn hình, cổng hoặc máy chủ</translation>
    </message>
    <message id="ID_Host_Exit_WrongUsage">
        <source></source>
        <translation>dùng sai: thông báo nêu rõ tùy chọn</translation>
    </message>
    <message id="ID_Host_Figure_Answered">
        <source></source>
        <translation>Số gói có hồi đáp</translation>
    </message>
    <message id="ID_Host_Figure_Bandwidth">
        <source></source>
        <translation>Tần số cao nhất thu được</translation>
    </message>
    <message id="ID_Host_Figure_Black">
        <source></source>
        <translation>Hình đen</translation>
    </message>
    <message id="ID_Host_Figure_Brightness">
        <source></source>
        <translation>Độ sáng</translation>
    </message>
    <message id="ID_Host_Figure_Clipped">
        <source></source>
        <translation>Âm thanh bị cắt đỉnh</translation>
    </message>
    <message id="ID_Host_Figure_DefaultAfter">
        <source></source>
        <translation>Thiết bị mặc định sau khi kiểm tra</translation>
    </message>
    <message id="ID_Host_Figure_DefaultBefore">
        <source></source>
        <translation>Thiết bị mặc định trước khi kiểm tra</translation>
    </message>
    <message id="ID_Host_Figure_Delay">
        <source></source>
        <translation>Thời gian khứ hồi (trung vị)</translation>
    </message>
    <message id="ID_Host_Figure_Delay5">
        <source></source>
        <translation>Thời gian khứ hồi (bách phân vị 5)</translation>
    </message>
    <message id="ID_Host_Figure_Delay95">
        <source></source>
        <translation>Thời gian khứ hồi (bách phân vị 95)</translation>
    </message>
    <message id="ID_Host_Figure_FirstPicture">
        <source></source>
        <translation>Thời gian đến hình đầu tiên</translation>
    </message>
    <message id="ID_Host_Figure_Frozen">
        <source></source>
        <translation>Hình bị đứng</translation>
    </message>
    <message id="ID_Host_Figure_Height">
        <source></source>
        <translation>Chiều cao hình</translation>
    </message>
    <message id="ID_Host_Figure_HumFrequency">
        <source></source>
        <translation>Tần số tiếng ù điện</translation>
    </message>
    <message id="ID_Host_Figure_HumShare">
        <source></source>
        <translation>Tiếng ù điện trong nhiễu</translation>
    </message>
    <message id="ID_Host_Figure_Jitter">
        <source></source>
        <translation>Độ dao động trễ (jitter)</translation>
    </message>
    <message id="ID_Host_Figure_Level">
        <source></source>
        <translation>Mức âm</translation>
    </message>
    <message id="ID_Host_Figure_LoopDelay">
        <source></source>
        <translation>Độ trễ từ loa đến micrô</translation>
    </message>
    <message id="ID_Host_Figure_LoopLevel">
        <source></source>
        <translation>Mức âm tại micrô</translation>
    </message>
    <message id="ID_Host_Figure_Loss">
        <source></source>
        <translation>Tỷ lệ mất gói</translation>
    </message>
    <message id="ID_Host_Figure_Modes">
        <source></source>
        <translation>Các chế độ của camera</translation>
    </message>
    <message id="ID_Host_Figure_MovedByUser">
        <source></source>
        <translation>Người dùng đã chỉnh âm lượng</translation>
    </message>
    <message id="ID_Host_Figure_MutedAfter">
        <source></source>
        <translation>Tắt tiếng sau khi kiểm tra</translation>
    </message>
    <message id="ID_Host_Figure_MutedBefore">
        <source></source>
        <translation>Tắt tiếng trước khi kiểm tra</translation>
    </message>
    <message id="ID_Host_Figure_NoiseFloor">
        <source></source>
        <translation>Nhiễu nền</translation>
    </message>
    <message id="ID_Host_Figure_OneWayDelay">
        <source></source>
        <translation>Độ trễ một chiều (nửa khứ hồi)</translation>
    </message>
    <message id="ID_Host_Figure_Peak">
        <source></source>
        <translation>Âm thanh lớn nhất</translation>
    </message>
    <message id="ID_Host_Figure_Pictures">
        <source></source>
        <translation>Số hình</translation>
    </message>
    <message id="ID_Host_Figure_Program">
        <source></source>
        <translation>Đang được dùng bởi</translation>
    </message>
    <message id="ID_Host_Figure_Rate">
        <source></source>
        <translation>Tốc độ hình</translation>
    </message>
    <message id="ID_Host_Figure_Seconds">
        <source></source>
        <translation>Thời gian đo</translation>
    </message>
    <message id="ID_Host_Figure_Sent">
        <source></source>
        <translation>Số gói đã gửi</translation>
    </message>
    <message id="ID_Host_Figure_SoundHeard">
        <source></source>
        <translation>Thu được âm thanh</translation>
    </message>
    <message id="ID_Host_Figure_SoundPlayed">
        <source></source>
        <translation>Âm thanh đã phát</translation>
    </message>
    <message id="ID_Host_Figure_VolumeAfter">
        <source></source>
        <translation>Âm lượng sau khi kiểm tra</translation>
    </message>
    <message id="ID_Host_Figure_VolumeBefore">
        <source></source>
        <translation>Âm lượng trước khi kiểm tra</translation>
    </message>
    <message id="ID_Host_Figure_Width">
        <source></source>
        <translation>Chiều rộng hình</translation>
    </message>
    <message id="ID_Host_File_IsFolder">
        <source></source>
        <translation>đây là thư mục; hãy nêu một tệp trong đó</translation>
    </message>
    <message id="ID_Host_File_NameOther">
        <source></source>
        <translation>%1; hãy nêu tệp khác</translation>
    </message>
    <message id="ID_Host_File_NoFolder">
        <source></source>
        <translation>không có thư mục %1; hãy tạo thư mục hoặc nêu tệp khác</translation>
    </message>
    <message id="ID_Host_File_NoObject">
        <source></source>
        <translation>tài liệu không phải là đối tượng</translation>
    </message>
    <message id="ID_Host_File_NoReport">
        <source></source>
        <translation>%1 không phải báo cáo JSON (%2); hãy nêu báo cáo do một lần kiểm tra ghi ra</translation>
    </message>
    <message id="ID_Host_File_NoRight">
        <source></source>
        <translation>bạn không có quyền ghi ở đó; hãy nêu tệp khác</translation>
    </message>
    <message id="ID_Host_File_NotOrdinary">
        <source></source>
        <translation>đây không phải tệp thường; hãy nêu tệp khác</translation>
    </message>
    <message id="ID_Host_File_NotRead">
        <source></source>
        <translation>không đọc được %1: %2; hãy nêu báo cáo do một lần kiểm tra ghi ra</translation>
    </message>
    <message id="ID_Host_File_NotWritten">
        <source></source>
        <translation>không ghi được %1: %2</translation>
    </message>
    <message id="ID_Host_File_TooLarge">
        <source></source>
        <translation>tệp quá lớn</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodPicture">
        <source></source>
        <translation>Trả lời “không”, nhưng vẫn có hình chuyển động.</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodSound">
        <source></source>
        <translation>Trả lời “không”, nhưng micrô thu được âm thanh.</translation>
    </message>
    <message id="ID_Host_Flag_NoToRightSound">
        <source></source>
        <translation>Trả lời “không”, nhưng đã chọn đúng âm thanh.</translation>
    </message>
    <message id="ID_Host_Flag_YesToBlackPicture">
        <source></source>
        <translation>Trả lời “có” khi hình bị đen.</translation>
    </message>
    <message id="ID_Host_Flag_YesToFrozenPicture">
        <source></source>
        <translation>Trả lời “có” khi hình bị đứng.</translation>
    </message>
    <message id="ID_Host_Flag_YesToMutedSpeaker">
        <source></source>
        <translation>Trả lời “có” khi loa bị tắt tiếng.</translation>
    </message>
    <message id="ID_Host_Flag_YesToSilence">
        <source></source>
        <translation>Trả lời “có”, nhưng micrô không thu được gì.</translation>
    </message>
    <message id="ID_Host_Flag_YesToWrongSound">
        <source></source>
        <translation>Trả lời “có”, nhưng không chọn đúng âm thanh.</translation>
    </message>
    <message id="ID_Host_Flag_YesWithoutPictures">
        <source></source>
        <translation>Trả lời “có”, nhưng không có hình nào.</translation>
    </message>
    <message id="ID_Host_Grade">
        <source></source>
        <translation>Chất lượng mạng</translation>
    </message>
    <message id="ID_Host_Grade_Fair">
        <source></source>
        <translation>trung bình</translation>
    </message>
    <message id="ID_Host_Grade_FairUpTo">
        <source></source>
        <translation>trung bình đến %1</translation>
    </message>
    <message id="ID_Host_Grade_Good">
        <source></source>
        <translation>tốt</translation>
    </message>
    <message id="ID_Host_Grade_GoodUpTo">
        <source></source>
        <translation>tốt đến %1</translation>
    </message>
    <message id="ID_Host_Grade_Poor">
        <source></source>
        <translation>kém</translation>
    </message>
    <message id="ID_Host_Help_Arguments">
        <source></source>
        <translation>Đối số:</translation>
    </message>
    <message id="ID_Host_Help_Check">
        <source></source>
        <translation>Kiểm tra mạng, camera, loa và micrô trước giờ học trực tuyến.</translation>
    </message>
    <message id="ID_Host_Help_Commands">
        <source></source>
        <translation>Lệnh:</translation>
    </message>
    <message id="ID_Host_Help_Devices">
        <source></source>
        <translation>Liệt kê camera, micrô và loa cùng trạng thái của chúng. Mã thoát 0: danh sách đầy đủ, kể cả khi không tìm thấy gì; 69: dịch vụ camera hoặc âm thanh không chạy hoặc không phản hồi.</translation>
    </message>
    <message id="ID_Host_Help_ExitCodes">
        <source></source>
        <translation>Mã thoát:</translation>
    </message>
    <message id="ID_Host_Help_File">
        <source></source>
        <translation>Báo cáo do một lần kiểm tra ghi ra; - là đầu vào chuẩn. Nếu không có: báo cáo của lần kiểm tra gần nhất.</translation>
    </message>
    <message id="ID_Host_Help_History">
        <source></source>
        <translation>Liệt kê các lần kiểm tra trước cùng kết quả và báo cáo.</translation>
    </message>
    <message id="ID_Host_Help_Network">
        <source></source>
        <translation>Đo độ trễ và tỷ lệ mất gói, in ra từng số đo.</translation>
    </message>
    <message id="ID_Host_Help_NoCommand">
        <source></source>
        <translation>Nếu không có lệnh, phần kiểm tra sẽ mở ra. Mỗi lệnh có trợ giúp riêng (--help).</translation>
    </message>
    <message id="ID_Host_Help_Options">
        <source></source>
        <translation>Tùy chọn:</translation>
    </message>
    <message id="ID_Host_Help_Report">
        <source></source>
        <translation>Hiển thị báo cáo của các lần kiểm tra trước dưới dạng văn bản, HTML hoặc JSON, hoặc gộp nhiều báo cáo thành một bảng.</translation>
    </message>
    <message id="ID_Host_Help_Serve">
        <source></source>
        <translation>Trả lời phép đo của các máy khác như một máy chủ STUN nhỏ, cho đến khi bị dừng.</translation>
    </message>
    <message id="ID_Host_Help_Usage">
        <source></source>
        <translation>Cách dùng: %1</translation>
    </message>
    <message id="ID_Host_Help_UsageOptions">
        <source></source>
        <translation>[tùy chọn]</translation>
    </message>
    <message id="ID_Host_History_NoReport">
        <source></source>
        <translation>chưa có báo cáo của lần kiểm tra nào; hãy chạy kiểm tra hoặc nêu tệp (FILE) của một báo cáo</translation>
    </message>
    <message id="ID_Host_History_None">
        <source></source>
        <translation>Chưa có lần kiểm tra nào trước đây.</translation>
    </message>
    <message id="ID_Host_Language_Unknown">
        <source></source>
        <translation>--language %1: không có văn bản trong ngôn ngữ này; hãy chọn một trong %2</translation>
    </message>
    <message id="ID_Host_LastGoodRun">
        <source></source>
        <translation>Lần kiểm tra đạt gần nhất</translation>
    </message>
    <message id="ID_Host_LastGoodRun_None">
        <source></source>
        <translation>Chưa có lần kiểm tra nào trước đó đạt toàn bộ.</translation>
    </message>
    <message id="ID_Host_MeasuringFailed">
        <source></source>
        <translation>đo thất bại: %1</translation>
    </message>
    <message id="ID_Host_Network_Ends">
        <source></source>
        <translation>máy chủ %1, máy này %2</translation>
    </message>
    <message id="ID_Host_Network_Figures">
        <source></source>
        <translation>độ trễ %1 ms, dao động %2 ms, mất gói %3%, số gói đã gửi %4, có hồi đáp %5: %6</translation>
    </message>
    <message id="ID_Host_Network_NameServer">
        <source></source>
        <translation>chưa đo: không có máy chủ; hãy chỉ định bằng --server, bằng %1 hoặc trong %2</translation>
    </message>
    <message id="ID_Host_Network_NoAnswer">
        <source></source>
        <translation>không có hồi đáp, mất gói %1%, số gói đã gửi %2, có hồi đáp %3</translation>
    </message>
    <message id="ID_Host_Network_NoRoute">
        <source></source>
        <translation>không có đường tới máy chủ, mất gói %1 %, đã gửi %2, được trả lời %3</translation>
    </message>
    <message id="ID_Host_Network_NoSuchServer">
        <source></source>
        <translation>không có máy chủ này, mất gói %1%, số gói đã gửi %2, có hồi đáp %3</translation>
    </message>
    <message id="ID_Host_Network_Refused">
        <source></source>
        <translation>máy chủ từ chối, mất gói %1 %, đã gửi %2, được trả lời %3</translation>
    </message>
    <message id="ID_Host_No">
        <source></source>
        <translation>Không</translation>
    </message>
    <message id="ID_Host_NoAnswer">
        <source></source>
        <translation>Không trả lời</translation>
    </message>
    <message id="ID_Host_NotMeasured">
        <source></source>
        <translation>không đo: %1</translation>
    </message>
    <message id="ID_Host_Option_Account">
        <source></source>
        <translation>Tài khoản hiển thị; mặc định là người dùng của hệ thống.</translation>
    </message>
    <message id="ID_Host_Option_Cdn">
        <source></source>
        <translation>CDN hiển thị.</translation>
    </message>
    <message id="ID_Host_Option_Count">
        <source></source>
        <translation>Kết thúc sau N số đo; nếu không, lệnh chạy cho đến khi bị dừng.</translation>
    </message>
    <message id="ID_Host_Option_Diagnose">
        <source></source>
        <translation>Đo như --unattended và gói báo cáo, thiết bị, phiên bản và nhật ký vào FILE.zip cho người tìm nguyên nhân. Không có --redact thì tên và địa chỉ được bỏ đi.</translation>
    </message>
    <message id="ID_Host_Option_FilesFrom">
        <source></source>
        <translation>Lấy thêm tên các báo cáo từ FILE, mỗi dòng một tên; - là đầu vào chuẩn.</translation>
    </message>
    <message id="ID_Host_Option_Format">
        <source></source>
        <translation>text (mặc định), html hoặc json; với nhiều báo cáo: room (bảng), map (trang có một ô cho mỗi báo cáo), csv hoặc jsonl.</translation>
    </message>
    <message id="ID_Host_Option_Help">
        <source></source>
        <translation>Hiển thị trợ giúp này.</translation>
    </message>
    <message id="ID_Host_Option_Json">
        <source></source>
        <translation>In JSON thay cho bảng.</translation>
    </message>
    <message id="ID_Host_Option_Language">
        <source></source>
        <translation>Ngôn ngữ của văn bản, ví dụ en hoặc zh_CN; mặc định là ngôn ngữ của hệ thống.</translation>
    </message>
    <message id="ID_Host_Option_Loop">
        <source></source>
        <translation>Cùng với --unattended: phát thêm một âm nhỏ tăng dần trong một giây trên loa đã chọn và tìm nó bằng micrô đã chọn. Việc này gây tiếng động.</translation>
    </message>
    <message id="ID_Host_Option_Nickname">
        <source></source>
        <translation>Biệt danh hiển thị; mặc định là người dùng của hệ thống.</translation>
    </message>
    <message id="ID_Host_Option_Platform">
        <source></source>
        <translation>Thiết bị cần kiểm tra: devices (của máy này, mặc định) hoặc scripted (mô phỏng).</translation>
    </message>
    <message id="ID_Host_Option_Port">
        <source></source>
        <translation>Cổng UDP để trả lời; mặc định là 3478, 0 là chọn một cổng trống.</translation>
    </message>
    <message id="ID_Host_Option_Quiet">
        <source></source>
        <translation>Không mở cửa sổ kết quả sau lần kiểm tra không đạt.</translation>
    </message>
    <message id="ID_Host_Option_Redact">
        <source></source>
        <translation>Phần bỏ đi: none (không bỏ, mặc định), personal (địa chỉ, tên và tài khoản) hoặc hash (thay bằng mã ngắn).</translation>
    </message>
    <message id="ID_Host_Option_Report">
        <source></source>
        <translation>Ghi báo cáo vào FILE thay cho nơi mặc định; phần đuôi (.json, .html hoặc .txt) quyết định định dạng, còn - là đầu ra chuẩn, dạng JSON.</translation>
    </message>
    <message id="ID_Host_Option_ReportTokenFile">
        <source></source>
        <translation>Tệp chứa token mà máy chủ báo cáo yêu cầu. Chỉ bạn hoặc một nhóm được đọc tệp này.</translation>
    </message>
    <message id="ID_Host_Option_ReportUrl">
        <source></source>
        <translation>Địa chỉ để gửi báo cáo và mã của nó. Nếu không có --redact, báo cáo không chứa tên và địa chỉ.</translation>
    </message>
    <message id="ID_Host_Option_Results">
        <source></source>
        <translation>Ghi thêm kết quả vào FILE dưới dạng JSON sau mỗi thay đổi; - là đầu ra chuẩn, khi kết thúc.</translation>
    </message>
    <message id="ID_Host_Option_Scenario">
        <source></source>
        <translation>Kịch bản của thiết bị mô phỏng: một tệp, hoặc tên kịch bản có sẵn như all-well. Bao hàm --platform scripted.</translation>
    </message>
    <message id="ID_Host_Option_Server">
        <source></source>
        <translation>Máy chủ STUN để đo độ trễ và mất gói, cũng có thể viết stun:HOST:PORT. Nếu không có cổng, bản ghi DNS của tên miền (_stun._udp) được tra, nếu không thì cổng là 3478. ENVCHECK_SERVER hoặc tệp cấu hình cũng có thể chỉ định. Không có máy chủ thì không đo mạng: chính máy này trả lời.</translation>
    </message>
    <message id="ID_Host_Option_Tour">
        <source></source>
        <translation>Tự động đi qua mọi bước và lưu hình của từng bước vào FOLDER.</translation>
    </message>
    <message id="ID_Host_Option_Unattended">
        <source></source>
        <translation>Đo không cần cửa sổ và không cần người; --json TỆP (- là đầu ra chuẩn) ghi báo cáo. Mã thoát: 0 hoạt động, 1 cần khắc phục, 69 thiếu dịch vụ hoặc máy chủ.</translation>
    </message>
    <message id="ID_Host_Option_Verbose">
        <source></source>
        <translation>Ghi cả nhật ký ra cửa sổ dòng lệnh.</translation>
    </message>
    <message id="ID_Host_Option_Version">
        <source></source>
        <translation>Hiển thị phiên bản.</translation>
    </message>
    <message id="ID_Host_Outcome_BrokenOff">
        <source></source>
        <translation>Không có người: kết thúc trước khi đo xong</translation>
    </message>
    <message id="ID_Host_Outcome_Failed">
        <source></source>
        <translation>Hoàn tất, có vấn đề</translation>
    </message>
    <message id="ID_Host_Outcome_Faulty">
        <source></source>
        <translation>Không có người: có thứ cần khắc phục</translation>
    </message>
    <message id="ID_Host_Outcome_LeftEarly">
        <source></source>
        <translation>Rời đi trước khi xong</translation>
    </message>
    <message id="ID_Host_Outcome_Passed">
        <source></source>
        <translation>Đạt toàn bộ</translation>
    </message>
    <message id="ID_Host_Outcome_PutOut">
        <source></source>
        <translation>Lớp học đã kết thúc phiên</translation>
    </message>
    <message id="ID_Host_Outcome_Unavailable">
        <source></source>
        <translation>Không có người: thiếu một dịch vụ nên chưa đo được mọi thứ</translation>
    </message>
    <message id="ID_Host_Outcome_Works">
        <source></source>
        <translation>Không có người: mọi thứ đã đo đều hoạt động</translation>
    </message>
    <message id="ID_Host_OutputNotWritten">
        <source></source>
        <translation>không ghi được đầu ra; hãy kiểm tra xem đĩa có bị đầy không</translation>
    </message>
    <message id="ID_Host_Reason_Absent">
        <source></source>
        <translation>không có thiết bị</translation>
    </message>
    <message id="ID_Host_Reason_Busy">
        <source></source>
        <translation>chương trình khác đang dùng thiết bị</translation>
    </message>
    <message id="ID_Host_Reason_Denied">
        <source></source>
        <translation>hệ thống từ chối truy cập</translation>
    </message>
    <message id="ID_Host_Reason_Failed">
        <source></source>
        <translation>thiết bị gặp sự cố</translation>
    </message>
    <message id="ID_Host_Reason_Hung">
        <source></source>
        <translation>thiết bị không phản hồi</translation>
    </message>
    <message id="ID_Host_Reason_Muted">
        <source></source>
        <translation>thiết bị đang tắt tiếng</translation>
    </message>
    <message id="ID_Host_Reason_NoAnswer">
        <source></source>
        <translation>máy chủ không phản hồi</translation>
    </message>
    <message id="ID_Host_Reason_NoRoute">
        <source></source>
        <translation>không có đường tới máy chủ</translation>
    </message>
    <message id="ID_Host_Reason_NotBuilt">
        <source></source>
        <translation>không được hỗ trợ trên hệ thống này</translation>
    </message>
    <message id="ID_Host_Reason_NotOffered">
        <source></source>
        <translation>bộ máy này không làm được</translation>
    </message>
    <message id="ID_Host_Reason_NotRecorded">
        <source></source>
        <translation>hệ thống đo không ghi lại mục này</translation>
    </message>
    <message id="ID_Host_Reason_Off">
        <source></source>
        <translation>thiết bị đang tắt</translation>
    </message>
    <message id="ID_Host_Reason_Refused">
        <source></source>
        <translation>máy chủ từ chối</translation>
    </message>
    <message id="ID_Host_Reason_Scripted">
        <source></source>
        <translation>thiết bị mô phỏng không có giá trị này</translation>
    </message>
    <message id="ID_Host_Reason_ServerLost">
        <source></source>
        <translation>dịch vụ âm thanh không chạy</translation>
    </message>
    <message id="ID_Host_Reason_ServerSilent">
        <source></source>
        <translation>dịch vụ âm thanh không phản hồi</translation>
    </message>
    <message id="ID_Host_Reason_Silent">
        <source></source>
        <translation>không nhận được gì từ thiết bị</translation>
    </message>
    <message id="ID_Host_Reason_StepNotOpened">
        <source></source>
        <translation>bước này chưa được mở</translation>
    </message>
    <message id="ID_Host_Reason_Unreadable">
        <source></source>
        <translation>camera không gửi định dạng nào hiển thị được</translation>
    </message>
    <message id="ID_Host_Reason_VolumeZero">
        <source></source>
        <translation>âm lượng bằng 0</translation>
    </message>
    <message id="ID_Host_Redacted_Hash">
        <source></source>
        <translation>Địa chỉ, tên và tài khoản được thay bằng mã ngắn.</translation>
    </message>
    <message id="ID_Host_Redacted_Personal">
        <source></source>
        <translation>Địa chỉ, tên và tài khoản đã được bỏ đi.</translation>
    </message>
    <message id="ID_Host_Remedy_Clipping">
        <source></source>
        <translation>Micrô quá to và bị méo tiếng, hãy giảm âm lượng của nó.</translation>
    </message>
    <message id="ID_Host_Remedy_Hum">
        <source></source>
        <translation>Micrô bị ù, hãy thử cổng hoặc cáp khác và để nó xa các bộ nguồn.</translation>
    </message>
    <message id="ID_Host_Remedy_LoopNotHeard">
        <source></source>
        <translation>Micrô không nghe thấy loa, hãy tăng âm lượng cả hai và kiểm tra xem chúng có thuộc cùng một tai nghe hoặc ở cùng một phòng không.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerSilent">
        <source></source>
        <translation>Dịch vụ hình ảnh và âm thanh của hệ thống không phản hồi, hãy đăng xuất rồi đăng nhập lại hoặc khởi động lại máy tính.</translation>
    </message>
    <message id="ID_Host_ReportIsIn">
        <source></source>
        <translation>Báo cáo nằm ở %1</translation>
    </message>
    <message id="ID_Host_Report_Answer">
        <source></source>
        <translation>Trả lời</translation>
    </message>
    <message id="ID_Host_Report_BadTime">
        <source></source>
        <translation>phải là thời gian như 2026-03-01T08:30:00Z</translation>
    </message>
    <message id="ID_Host_Report_Causes">
        <source></source>
        <translation>Nguyên nhân</translation>
    </message>
    <message id="ID_Host_Report_Computer">
        <source></source>
        <translation>Máy tính</translation>
    </message>
    <message id="ID_Host_Report_Contradiction">
        <source></source>
        <translation>Mâu thuẫn</translation>
    </message>
    <message id="ID_Host_Report_Count">
        <source></source>
        <translation>Báo cáo</translation>
    </message>
    <message id="ID_Host_Report_Device">
        <source></source>
        <translation>Thiết bị</translation>
    </message>
    <message id="ID_Host_Report_Id">
        <source></source>
        <translation>Mã báo cáo</translation>
    </message>
    <message id="ID_Host_Report_Later">
        <source></source>
        <translation>Đo sau đó</translation>
    </message>
    <message id="ID_Host_Report_Measurements">
        <source></source>
        <translation>Số đo</translation>
    </message>
    <message id="ID_Host_Report_Notice">
        <source></source>
        <translation>Lưu ý</translation>
    </message>
    <message id="ID_Host_Report_OtherFormat">
        <source></source>
        <translation>đây không phải là báo cáo kiểm tra</translation>
    </message>
    <message id="ID_Host_Report_OtherVersion">
        <source></source>
        <translation>đó là %1, còn chương trình này đọc phiên bản %2</translation>
    </message>
    <message id="ID_Host_Report_Outcome">
        <source></source>
        <translation>Kết quả chung</translation>
    </message>
    <message id="ID_Host_Report_Program">
        <source></source>
        <translation>Chương trình</translation>
    </message>
    <message id="ID_Host_Report_Result">
        <source></source>
        <translation>Kết quả</translation>
    </message>
    <message id="ID_Host_Report_RightSound">
        <source></source>
        <translation>Chọn đúng âm thanh</translation>
    </message>
    <message id="ID_Host_Report_Scripted">
        <source></source>
        <translation>Thiết bị được mô phỏng, không phải của máy này.</translation>
    </message>
    <message id="ID_Host_Report_Summary">
        <source></source>
        <translation>Tóm tắt</translation>
    </message>
    <message id="ID_Host_Report_System">
        <source></source>
        <translation>Máy và tài khoản</translation>
    </message>
    <message id="ID_Host_Report_Time">
        <source></source>
        <translation>Thời gian</translation>
    </message>
    <message id="ID_Host_Report_Title">
        <source></source>
        <translation>Báo cáo kiểm tra hệ thống</translation>
    </message>
    <message id="ID_Host_Serve_Answering">
        <source></source>
        <translation>Đang trả lời trên cổng UDP %1. Máy khác đo đường đến đây bằng --server stun:HOST:%1</translation>
    </message>
    <message id="ID_Host_Serve_NoPort">
        <source></source>
        <translation>không trả lời được trên cổng UDP %1: %2. Hãy chọn cổng khác bằng --port</translation>
    </message>
    <message id="ID_Host_Serve_NotBuilt">
        <source></source>
        <translation>serve cần chương trình được dựng có thiết bị thật (ENVCHECK_DEVICES)</translation>
    </message>
    <message id="ID_Host_State_Absent">
        <source></source>
        <translation>chưa kết nối</translation>
    </message>
    <message id="ID_Host_State_Busy">
        <source></source>
        <translation>đang được dùng</translation>
    </message>
    <message id="ID_Host_State_Denied">
        <source></source>
        <translation>bị từ chối</translation>
    </message>
    <message id="ID_Host_State_Failed">
        <source></source>
        <translation>gặp sự cố</translation>
    </message>
    <message id="ID_Host_State_Hung">
        <source></source>
        <translation>không phản hồi</translation>
    </message>
    <message id="ID_Host_State_Off">
        <source></source>
        <translation>đang tắt</translation>
    </message>
    <message id="ID_Host_State_Ready">
        <source></source>
        <translation>sẵn sàng</translation>
    </message>
    <message id="ID_Host_State_Silent">
        <source></source>
        <translation>không có tín hiệu</translation>
    </message>
    <message id="ID_Host_State_Working">
        <source></source>
        <translation>hoạt động</translation>
    </message>
    <message id="ID_Host_Takes_Ending">
        <source></source>
        <translation>một tên kết thúc bằng %1, hoặc - cho đầu ra chuẩn</translation>
    </message>
    <message id="ID_Host_Takes_FileEnding">
        <source></source>
        <translation>một tên tệp kết thúc bằng %1</translation>
    </message>
    <message id="ID_Host_Takes_Number">
        <source></source>
        <translation>một số từ %1 đến %2</translation>
    </message>
    <message id="ID_Host_Takes_OneOf">
        <source></source>
        <translation>một trong các giá trị: %1</translation>
    </message>
    <message id="ID_Host_Takes_Server">
        <source></source>
        <translation>HOST hoặc HOST:PORT, có hoặc không có stun: ở trước, ví dụ stun:stun.example.org:3478</translation>
    </message>
    <message id="ID_Host_Takes_WebAddress">
        <source></source>
        <translation>một địa chỉ http hoặc https</translation>
    </message>
    <message id="ID_Host_Token_NoToken">
        <source></source>
        <translation>%1: đây không phải token; cần một dòng gồm chữ cái, chữ số và - . _ ~ + /, với = ở cuối</translation>
    </message>
    <message id="ID_Host_Token_NotEncrypted">
        <source></source>
        <translation>%1: token chỉ được gửi qua https; hãy dùng địa chỉ https hoặc bỏ token</translation>
    </message>
    <message id="ID_Host_Token_NotRead">
        <source></source>
        <translation>không đọc được %1: %2; hãy nêu tệp chứa token của máy chủ báo cáo</translation>
    </message>
    <message id="ID_Host_Token_Open">
        <source></source>
        <translation>%1 chứa token mà mọi người dùng đều đọc hoặc ghi được; hãy đổi bằng: chmod o= %1</translation>
    </message>
    <message id="ID_Host_Tour_Done">
        <source></source>
        <translation>Đã lưu %1 hình vào %2; index.html hiển thị tất cả.</translation>
    </message>
    <message id="ID_Host_Tour_NoFolder">
        <source></source>
        <translation>--tour %1: không tạo được thư mục này; hãy nêu thư mục khác</translation>
    </message>
    <message id="ID_Host_Tour_NotWritten">
        <source></source>
        <translation>%1: %2; hãy nêu thư mục khác</translation>
    </message>
    <message id="ID_Host_Upload_Kept">
        <source></source>
        <translation>Báo cáo chưa đến được %1: %2. Báo cáo được giữ lại và lần chạy sau sẽ gửi lại.</translation>
    </message>
    <message id="ID_Host_Upload_NoAnswer">
        <source></source>
        <translation>không có trả lời kịp thời</translation>
    </message>
    <message id="ID_Host_Upload_Refused">
        <source></source>
        <translation>%1 không nhận báo cáo: %2. Báo cáo sẽ không được gửi lại.</translation>
    </message>
    <message id="ID_Host_Upload_Sending">
        <source></source>
        <translation>Đang gửi báo cáo đến %1 …</translation>
    </message>
    <message id="ID_Host_Upload_WrongToken">
        <source></source>
        <translation>thiếu token hoặc token sai (HTTP %1)</translation>
    </message>
    <message id="ID_Host_Usage_EmptyName">
        <source></source>
        <translation>--%1 cần một tên không trống</translation>
    </message>
    <message id="ID_Host_Usage_ExtraArgument">
        <source></source>
        <translation>thừa đối số “%1”: xem --help</translation>
    </message>
    <message id="ID_Host_Usage_LeaveOneOut">
        <source></source>
        <translation>%1 không đi cùng %2: hãy bỏ một trong hai</translation>
    </message>
    <message id="ID_Host_Usage_Needs">
        <source></source>
        <translation>--%1 cần --%2: hãy thêm vào hoặc bỏ --%1</translation>
    </message>
    <message id="ID_Host_Usage_OtherCommand">
        <source></source>
        <translation>--%1 không dùng được với %2: xem --help</translation>
    </message>
    <message id="ID_Host_Usage_SamePlace">
        <source></source>
        <translation>--%1 và --%2 sẽ ghi vào cùng một nơi (%3): hãy nêu hai nơi khác nhau</translation>
    </message>
    <message id="ID_Host_Usage_SeeHelp">
        <source></source>
        <translation>%1 Xem --help.</translation>
    </message>
    <message id="ID_Host_Usage_Takes">
        <source></source>
        <translation>--%1 %2: cần %3</translation>
    </message>
    <message id="ID_Host_Usage_TheCheck">
        <source></source>
        <translation>phần kiểm tra</translation>
    </message>
    <message id="ID_Host_Usage_UnknownCommand">
        <source></source>
        <translation>không có lệnh “%1”: xem --help</translation>
    </message>
    <message id="ID_Host_Verdict_Faulty">
        <source></source>
        <translation>Cần khắc phục</translation>
    </message>
    <message id="ID_Host_Verdict_Heard">
        <source></source>
        <translation>Nghe thấy</translation>
    </message>
    <message id="ID_Host_Verdict_NotHeard">
        <source></source>
        <translation>Không nghe thấy</translation>
    </message>
    <message id="ID_Host_Verdict_NotTried">
        <source></source>
        <translation>Chưa thử</translation>
    </message>
    <message id="ID_Host_Verdict_Unmeasured">
        <source></source>
        <translation>Chưa đo</translation>
    </message>
    <message id="ID_Host_Verdict_Works">
        <source></source>
        <translation>Hoạt động</translation>
    </message>
    <message id="ID_Host_Yes">
        <source></source>
        <translation>Có</translation>
    </message>
    <message id="ID_Kestrel_SystemTesting">
        <source></source>
        <translation>Kiểm tra hệ thống</translation>
    </message>
    <message id="ID_MessageBox_Critical">
        <source></source>
        <translation>Lỗi</translation>
    </message>
    <message id="ID_MessageBox_Information">
        <source></source>
        <translation>Thông tin</translation>
    </message>
    <message id="ID_MessageBox_Question">
        <source></source>
        <translation>Câu hỏi</translation>
    </message>
    <message id="ID_MessageBox_Warning">
        <source></source>
        <translation>Cảnh báo</translation>
    </message>
    <message id="ID_Microphone">
        <source></source>
        <translation>Micrô:</translation>
    </message>
    <message id="ID_MicrophonePage_2">
        <source></source>
        <translation>2. Bật tiếng micrô: tìm công tắc hoặc phím tắt tiếng.</translation>
    </message>
    <message id="ID_MicrophonePage_3">
        <source></source>
        <translation>3. Tăng âm lượng và nói gần micrô.</translation>
    </message>
    <message id="ID_MicrophonePage_4">
        <source></source>
        <translation>4. Cho phép dùng micrô trong cài đặt quyền riêng tư.</translation>
    </message>
    <message id="ID_MicrophonePage_Again">
        <source></source>
        <translation>Ghi lại</translation>
    </message>
    <message id="ID_MicrophonePage_CanHearOrSee">
        <source></source>
        <translation>Có, nghe và thấy</translation>
    </message>
    <message id="ID_MicrophonePage_CanNotHearOrSee">
        <source></source>
        <translation>Không nghe hoặc thấy</translation>
    </message>
    <message id="ID_MicrophonePage_ChoseNo">
        <source></source>
        <translation>Không nghe, thanh không chạy</translation>
    </message>
    <message id="ID_MicrophonePage_ClickHere">
        <source></source>
        <translation>Không nghe thấy giọng mình? Nhấn vào đây</translation>
    </message>
    <message id="ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable">
        <source></source>
        <translation>Micrô đang tắt. Hãy chọn micrô ở đây hoặc bật lên.</translation>
    </message>
    <message id="ID_MicrophonePage_MayNoisy">
        <source></source>
        <translation>Trên 100, giọng nói có thể bị nhiễu.</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneDisabled">
        <source></source>
        <translation>Micrô đang tắt</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneTest">
        <source></source>
        <translation>Nhấn “Ghi âm” và đếm to từ 1 đến 10. Hãy nghe giọng mình và xem thanh màu xanh có chuyển động không.</translation>
    </message>
    <message id="ID_MicrophonePage_NoMicrophoneWasDetected">
        <source></source>
        <translation>Không tìm thấy micrô</translation>
    </message>
    <message id="ID_MicrophonePage_NoVoiceWasRecorded">
        <source></source>
        <translation>Micrô không thu được âm thanh</translation>
    </message>
    <message id="ID_MicrophonePage_OfS">
        <source></source>
        <translation>%1 giây</translation>
    </message>
    <message id="ID_MicrophonePage_Recording">
        <source></source>
        <translation>Hãy nói</translation>
    </message>
    <message id="ID_Microphone_Check">
        <source></source>
        <translation>Micrô</translation>
    </message>
    <message id="ID_NetworkPage_1">
        <source></source>
        <translation>1. Lại gần bộ phát Wi-Fi hơn hoặc dùng cáp mạng.</translation>
    </message>
    <message id="ID_NetworkPage_2">
        <source></source>
        <translation>2. Dừng tải xuống và xem video, kể cả trên thiết bị khác.</translation>
    </message>
    <message id="ID_NetworkPage_3">
        <source></source>
        <translation>3. Tắt VPN và proxy, hoặc khởi động lại bộ phát Wi-Fi.</translation>
    </message>
    <message id="ID_NetworkPage_Account">
        <source></source>
        <translation>Tài khoản:</translation>
    </message>
    <message id="ID_NetworkPage_AvailableCacheSpace">
        <source></source>
        <translation>Bộ đệm trống:</translation>
    </message>
    <message id="ID_NetworkPage_CPU">
        <source></source>
        <translation>Bộ xử lý:</translation>
    </message>
    <message id="ID_NetworkPage_ClickHere">
        <source></source>
        <translation>Mạng chậm hoặc không ổn định? Nhấn vào đây</translation>
    </message>
    <message id="ID_NetworkPage_Client">
        <source></source>
        <translation>Máy khách:</translation>
    </message>
    <message id="ID_NetworkPage_LostRate">
        <source></source>
        <translation>Tỷ lệ mất gói:</translation>
    </message>
    <message id="ID_NetworkPage_NetworkDelay">
        <source></source>
        <translation>Độ trễ mạng:</translation>
    </message>
    <message id="ID_NetworkPage_NetworkSlowOrUnstable">
        <source></source>
        <translation>Mạng chậm hoặc không ổn định</translation>
    </message>
    <message id="ID_NetworkPage_OS">
        <source></source>
        <translation>Hệ điều hành:</translation>
    </message>
    <message id="ID_NewLogin_Server">
        <source></source>
        <translation>Máy chủ:</translation>
    </message>
    <message id="ID_Next">
        <source></source>
        <translation>Tiếp theo</translation>
    </message>
    <message id="ID_Nickname_NetworkPage">
        <source></source>
        <translation>Biệt danh:</translation>
    </message>
    <message id="ID_OK">
        <source></source>
        <translation>Xong</translation>
    </message>
    <message id="ID_Record">
        <source></source>
        <translation>Ghi âm</translation>
    </message>
    <message id="ID_Skip">
        <source></source>
        <translation>Bỏ qua</translation>
    </message>
    <message id="ID_Volume">
        <source></source>
        <translation>Mức:</translation>
    </message>
    <message id="ID_WelcomePage_StartTest">
        <source></source>
        <translation>Bắt đầu kiểm tra</translation>
    </message>
    <message id="ID_WelcomePage_Welcome">
        <source></source>
        <translation>Chào mừng bạn đến với lớp học trực tuyến</translation>
    </message>
    <message id="ID_hardwaremgrinterface_NoSpeakerFound">
        <source></source>
        <translation>Không tìm thấy loa</translation>
    </message>
    <message id="ID_lumcamera_NoWebcamFound">
        <source></source>
        <translation>Không tìm thấy camera</translation>
    </message>
    <message id="ID_Host_Reason_NoServer">
        <source></source>
        <translation>chưa có máy chủ</translation>
    </message>
    <message id="ID_Host_Reason_NoSuchHost">
        <source></source>
        <translation>không rõ tên máy chủ</translation>
    </message>
    <message id="ID_Host_Remedy">
        <source></source>
        <translation>Cách xử lý</translation>
    </message>
    <message id="ID_Host_Remedy_NoServer">
        <source></source>
        <translation>Chỉ đo trong máy tính này vì chưa đặt máy chủ, hãy hỏi trường của bạn về máy chủ rồi đặt bằng --server hoặc trong tệp cấu hình.</translation>
    </message>
    <message id="ID_Host_Remedy_NoAnswer">
        <source></source>
        <translation>Máy chủ không phản hồi, hãy kiểm tra kết nối mạng và xem tường lửa có chặn UDP không.</translation>
    </message>
    <message id="ID_Host_Remedy_NoSuchHost">
        <source></source>
        <translation>Không rõ tên máy chủ, hãy kiểm tra cách viết và kết nối mạng.</translation>
    </message>
    <message id="ID_Host_Remedy_Slow">
        <source></source>
        <translation>Kết nối chậm, hãy dùng cáp mạng hoặc lại gần bộ phát Wi-Fi hơn, đồng thời dừng tải xuống và các cuộc gọi khác.</translation>
    </message>
    <message id="ID_Host_Remedy_Lossy">
        <source></source>
        <translation>Quá nhiều dữ liệu bị mất trên đường truyền, hãy dùng cáp mạng hoặc lại gần bộ phát Wi-Fi hơn.</translation>
    </message>
    <message id="ID_Host_Remedy_LeftTooSoon">
        <source></source>
        <translation>Bạn đã rời bước này trước khi đo xong, hãy chờ ở đó đến khi có kết quả.</translation>
    </message>
    <message id="ID_Host_Remedy_Absent">
        <source></source>
        <translation>Không tìm thấy thiết bị nào, hãy cắm hoặc bật thiết bị rồi kiểm tra lại.</translation>
    </message>
    <message id="ID_Host_Remedy_Off">
        <source></source>
        <translation>Thiết bị đang tắt trong danh sách, hãy chọn một thiết bị ở đó.</translation>
    </message>
    <message id="ID_Host_Remedy_Starting">
        <source></source>
        <translation>Thiết bị còn đang khởi động, hãy chờ thêm một chút trước khi trả lời.</translation>
    </message>
    <message id="ID_Host_Remedy_Busy">
        <source></source>
        <translation>Chương trình khác đang dùng thiết bị, hãy đóng chương trình đó rồi kiểm tra lại.</translation>
    </message>
    <message id="ID_Host_Remedy_Denied">
        <source></source>
        <translation>Hệ thống từ chối quyền dùng thiết bị, hãy cho phép trong cài đặt quyền riêng tư.</translation>
    </message>
    <message id="ID_Host_Remedy_Hung">
        <source></source>
        <translation>Thiết bị không phản hồi, hãy rút ra rồi cắm lại hoặc khởi động lại máy tính.</translation>
    </message>
    <message id="ID_Host_Remedy_Stalled">
        <source></source>
        <translation>Camera không gửi hình, hãy rút ra rồi cắm lại hoặc chọn camera khác.</translation>
    </message>
    <message id="ID_Host_Remedy_Black">
        <source></source>
        <translation>Hình bị đen, hãy mở nắp che ống kính và bật đèn.</translation>
    </message>
    <message id="ID_Host_Remedy_Frozen">
        <source></source>
        <translation>Hình bị đứng, hãy rút camera ra rồi cắm lại.</translation>
    </message>
    <message id="ID_Host_Remedy_Unplugged">
        <source></source>
        <translation>Thiết bị bị rút ra trong lúc kiểm tra, hãy cắm lại và kiểm tra dây cáp.</translation>
    </message>
    <message id="ID_Host_Remedy_NotBuilt">
        <source></source>
        <translation>Chương trình này không dùng được loại thiết bị này trên hệ thống này, nên hãy thử thiết bị trong chương trình khác.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerLost">
        <source></source>
        <translation>Dịch vụ hình ảnh và âm thanh của hệ thống đã dừng, hãy đăng xuất rồi đăng nhập lại hoặc khởi động lại máy tính.</translation>
    </message>
    <message id="ID_Host_Remedy_Failed">
        <source></source>
        <translation>Thiết bị bị lỗi, hãy cắm lại hoặc thử thiết bị khác.</translation>
    </message>
    <message id="ID_Host_Remedy_Unreadable">
        <source></source>
        <translation>Camera không gửi định dạng nào hiển thị được ở đây, hãy chọn camera khác hoặc định dạng khác trong cài đặt của nó.</translation>
    </message>
    <message id="ID_Host_Remedy_Silent">
        <source></source>
        <translation>Micrô không thu được gì, hãy nói gần hơn, kiểm tra công tắc của nó hoặc chọn micrô khác trong danh sách.</translation>
    </message>
    <message id="ID_Host_Remedy_Muted">
        <source></source>
        <translation>Thiết bị đang tắt tiếng, hãy bật tiếng lại.</translation>
    </message>
    <message id="ID_Host_Remedy_VolumeZero">
        <source></source>
        <translation>Âm lượng là 0, hãy tăng lên.</translation>
    </message>
    <message id="ID_Host_Remedy_WrongSound">
        <source></source>
        <translation>Bạn đã chọn âm thanh khác với âm thanh được phát, hãy tăng âm lượng rồi nghe lại.</translation>
    </message>
    <message id="ID_Host_Remedy_NotSeen">
        <source></source>
        <translation>Bạn không thấy mình dù camera có gửi hình, hãy kiểm tra camera nào đang được chọn.</translation>
    </message>
    <message id="ID_Host_Remedy_NotHeard">
        <source></source>
        <translation>Bạn không nghe thấy gì dù âm thanh đã được phát, hãy tăng âm lượng và kiểm tra loa nào đang được chọn.</translation>
    </message>
    <message id="ID_Host_Remedy_SelfNotHeard">
        <source></source>
        <translation>Bạn không nghe thấy mình dù micrô đã thu được âm thanh, hãy tăng âm lượng và kiểm tra loa nào đang được chọn.</translation>
    </message>
    <message id="ID_Host_Window_Title">
        <source></source>
        <translation>Kết quả kiểm tra</translation>
    </message>
    <message id="ID_Host_Window_Copy">
        <source></source>
        <translation>Sao chép</translation>
    </message>
    <message id="ID_Host_Window_Save">
        <source></source>
        <translation>Lưu…</translation>
    </message>
    <message id="ID_Host_Window_Open">
        <source></source>
        <translation>Mở báo cáo</translation>
    </message>
    <message id="ID_Host_Window_Close">
        <source></source>
        <translation>Đóng</translation>
    </message>
    <message id="ID_Host_Window_Copied">
        <source></source>
        <translation>Đã sao chép báo cáo. Hãy dán trước khi đóng cửa sổ này.</translation>
    </message>
    <message id="ID_Host_Window_Saved">
        <source></source>
        <translation>Đã lưu báo cáo vào %1</translation>
    </message>
    <message id="ID_Host_Window_NotWritten">
        <source></source>
        <translation>Không thể ghi báo cáo vào %1. Hãy chọn nơi khác.</translation>
    </message>
    <message id="ID_Host_Window_NotOpened">
        <source></source>
        <translation>Không có chương trình nào mở được báo cáo. Báo cáo nằm ở %1</translation>
    </message>
</context>
</TS>
