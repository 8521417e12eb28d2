<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Không có tùy chọn “%1”.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Không có các tùy chọn: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Thiếu giá trị sau “%1”.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>“%1” không nhận giá trị.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Lưu</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Mở</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Có</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Không</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Hủy bỏ</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Thử lại</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Bỏ qua</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Đóng</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Trợ giúp</translation>
    </message>
</context>
</TS>
