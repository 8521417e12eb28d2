<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name></name>
    <message id="ID_CameraPage_1">
        <source></source>
        <translation>1. Проверьте, что устройство подключено и выбрано в списке.</translation>
    </message>
    <message id="ID_CameraPage_2">
        <source></source>
        <translation>2. Закройте другие программы, которые используют камеру.</translation>
    </message>
    <message id="ID_CameraPage_3">
        <source></source>
        <translation>3. Откройте шторку объектива или включите камеру клавишей.</translation>
    </message>
    <message id="ID_CameraPage_4">
        <source></source>
        <translation>4. Разрешите камеру в настройках конфиденциальности.</translation>
    </message>
    <message id="ID_CameraPage_5">
        <source></source>
        <translation>5. Перезагрузите компьютер или возьмите другое устройство.</translation>
    </message>
    <message id="ID_CameraPage_Camera">
        <source></source>
        <translation>Камера:</translation>
    </message>
    <message id="ID_CameraPage_CameraDisabled">
        <source></source>
        <translation>Камера выключена</translation>
    </message>
    <message id="ID_CameraPage_CannotSee">
        <source></source>
        <translation>Нет, не вижу</translation>
    </message>
    <message id="ID_CameraPage_ClickHere">
        <source></source>
        <translation>Не видите себя? Нажмите здесь</translation>
    </message>
    <message id="ID_CameraPage_DisabledWillMakeCameraUnusable">
        <source></source>
        <translation>Камера выключена. Выберите её здесь или включите.</translation>
    </message>
    <message id="ID_CameraPage_No">
        <source></source>
        <translation>Нет, не вижу</translation>
    </message>
    <message id="ID_CameraPage_NoCameraImageWasDetected">
        <source></source>
        <translation>Камера не даёт изображения</translation>
    </message>
    <message id="ID_CameraPage_NotDetected">
        <source></source>
        <translation>Нет ответа на эту проверку</translation>
    </message>
    <message id="ID_CameraPage_Yes">
        <source></source>
        <translation>Да, вижу</translation>
    </message>
    <message id="ID_CameraPage_choseNo">
        <source></source>
        <translation>Вы не видите себя</translation>
    </message>
    <message id="ID_Camera_Check">
        <source></source>
        <translation>Камера</translation>
    </message>
    <message id="ID_CheckResultPage_Abnormal">
        <source></source>
        <translation>Ошибка</translation>
    </message>
    <message id="ID_CheckResultPage_CheckEquipmentAndRetest">
        <source></source>
        <translation>Исправьте и повторите.</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentAbnormal">
        <source></source>
        <translation>Есть неполадки</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentNormal">
        <source></source>
        <translation>Всё работает</translation>
    </message>
    <message id="ID_CheckResultPage_Headphone">
        <source></source>
        <translation>Звук</translation>
    </message>
    <message id="ID_CheckResultPage_Normal">
        <source></source>
        <translation>Пройдено</translation>
    </message>
    <message id="ID_CheckResultPage_OK">
        <source></source>
        <translation>Можно начинать урок.</translation>
    </message>
    <message id="ID_CheckResultPage_Redetect">
        <source></source>
        <translation>Повторить</translation>
    </message>
    <message id="ID_CheckResultPage_System">
        <source></source>
        <translation>Сеть</translation>
    </message>
    <message id="ID_ContentPage_NotFinishedIfLeave">
        <source></source>
        <translation>Проверка системы не закончена. Выйти?</translation>
    </message>
    <message id="ID_Engine_BuiltInResponder">
        <source></source>
        <translation>Не измерено: нет сервера</translation>
    </message>
    <message id="ID_Engine_Camera_Absent">
        <source></source>
        <translation>Камера не найдена.
Подключите камеру к этому компьютеру.</translation>
    </message>
    <message id="ID_Engine_Camera_Black">
        <source></source>
        <translation>Изображение чёрное.
Откройте шторку объектива или включите свет.</translation>
    </message>
    <message id="ID_Engine_Camera_Busy">
        <source></source>
        <translation>Камеру использует другая программа.
Закройте эту программу.</translation>
    </message>
    <message id="ID_Engine_Camera_BusyBy">
        <source></source>
        <translation>Камеру использует программа %1.
Закройте её.</translation>
    </message>
    <message id="ID_Engine_Camera_Denied">
        <source></source>
        <translation>Система запрещает доступ к камере.
Разрешите его в настройках приватности системы.</translation>
    </message>
    <message id="ID_Engine_Camera_Failed">
        <source></source>
        <translation>Камера не работает.
Подключите её заново или выберите другую.</translation>
    </message>
    <message id="ID_Engine_Camera_Hung">
        <source></source>
        <translation>Камера не отвечает.
Подключите её заново или перезагрузите компьютер.</translation>
    </message>
    <message id="ID_Engine_Camera_NotBuilt">
        <source></source>
        <translation>Эта программа не может использовать камеры в этой системе.
Проверьте камеру в другой программе.</translation>
    </message>
    <message id="ID_Engine_Camera_ServerLost">
        <source></source>
        <translation>Служба камер этого компьютера не работает.
Подождите немного или перезагрузите компьютер.</translation>
    </message>
    <message id="ID_Engine_Camera_Stalled">
        <source></source>
        <translation>Камера не даёт изображения.
Подключите её заново или выберите другую.</translation>
    </message>
    <message id="ID_Engine_Camera_Starting">
        <source></source>
        <translation>Камера запускается…</translation>
    </message>
    <message id="ID_Engine_Camera_Unplugged">
        <source></source>
        <translation>Камера отключена.
Подключите её снова или выберите другую.</translation>
    </message>
    <message id="ID_Engine_Camera_Unreadable">
        <source></source>
        <translation>Изображение этой камеры здесь нельзя показать.
Выберите другую камеру или другой формат в её настройках.</translation>
    </message>
    <message id="ID_Engine_File_BadEnd">
        <source></source>
        <translation>в Windows имя не может заканчиваться точкой или пробелом</translation>
    </message>
    <message id="ID_Engine_File_BadLetter">
        <source></source>
        <translation>в Windows имя не может содержать &lt; &gt; : " | ? * и управляющие символы</translation>
    </message>
    <message id="ID_Engine_File_DeadLink">
        <source></source>
        <translation>это ссылка в никуда</translation>
    </message>
    <message id="ID_Engine_File_DeviceName">
        <source></source>
        <translation>%1 в Windows — имя устройства</translation>
    </message>
    <message id="ID_Engine_File_DiskSilent">
        <source></source>
        <translation>диск не отвечает</translation>
    </message>
    <message id="ID_Engine_File_ForeignLink">
        <source></source>
        <translation>это ссылка другого пользователя</translation>
    </message>
    <message id="ID_Engine_File_LockHeld">
        <source></source>
        <translation>другая программа держит файл блокировки %1</translation>
    </message>
    <message id="ID_Engine_File_LockNotMade">
        <source></source>
        <translation>не удаётся создать файл блокировки</translation>
    </message>
    <message id="ID_Engine_File_LockNotRegular">
        <source></source>
        <translation>файл блокировки %1 — не обычный файл</translation>
    </message>
    <message id="ID_Engine_File_NoFolder">
        <source></source>
        <translation>не удаётся создать папку</translation>
    </message>
    <message id="ID_Engine_File_NotMade">
        <source></source>
        <translation>не удаётся создать новое содержимое; возможно, диск переполнен</translation>
    </message>
    <message id="ID_Engine_File_NotRegular">
        <source></source>
        <translation>это не обычный файл</translation>
    </message>
    <message id="ID_Engine_File_TooLarge">
        <source></source>
        <translation>он больше %1 МиБ</translation>
    </message>
    <message id="ID_Engine_File_TooManyChanges">
        <source></source>
        <translation>слишком много изменений ждут записи на диск</translation>
    </message>
    <message id="ID_Engine_Json_Document">
        <source></source>
        <translation>документ должен быть объектом</translation>
    </message>
    <message id="ID_Engine_Json_Empty">
        <source></source>
        <translation>не должно быть пустым</translation>
    </message>
    <message id="ID_Engine_Json_Flag">
        <source></source>
        <translation>должно быть true или false</translation>
    </message>
    <message id="ID_Engine_Json_Invalid">
        <source></source>
        <translation>недопустимый JSON: %1</translation>
    </message>
    <message id="ID_Engine_Json_List">
        <source></source>
        <translation>должно быть списком</translation>
    </message>
    <message id="ID_Engine_Json_Missing">
        <source></source>
        <translation>отсутствует</translation>
    </message>
    <message id="ID_Engine_Json_Number">
        <source></source>
        <translation>должно быть числом</translation>
    </message>
    <message id="ID_Engine_Json_Object">
        <source></source>
        <translation>должно быть объектом</translation>
    </message>
    <message id="ID_Engine_Json_ShortList">
        <source></source>
        <translation>должно быть списком не более чем из %1 элементов</translation>
    </message>
    <message id="ID_Engine_Json_ShortText">
        <source></source>
        <translation>должно быть текстом не длиннее %1 символов</translation>
    </message>
    <message id="ID_Engine_Json_Text">
        <source></source>
        <translation>должно быть текстом</translation>
    </message>
    <message id="ID_Engine_Json_Twice">
        <source></source>
        <translation>встречается дважды</translation>
    </message>
    <message id="ID_Engine_Json_Unknown">
        <source></source>
        <translation>здесь нет такого поля</translation>
    </message>
    <message id="ID_Engine_Json_WholeNumber">
        <source></source>
        <translation>должно быть целым числом от %1 до %2</translation>
    </message>
    <message id="ID_Engine_Json_Word">
        <source></source>
        <translation>должно быть одним из слов: %1</translation>
    </message>
    <message id="ID_Engine_Json_WordList">
        <source></source>
        <translation>должно быть списком из слов: %1</translation>
    </message>
    <message id="ID_Engine_NoCamera">
        <source></source>
        <translation>Нет камеры</translation>
    </message>
    <message id="ID_Engine_NoMicrophone">
        <source></source>
        <translation>Нет микрофона</translation>
    </message>
    <message id="ID_Engine_NoSpeaker">
        <source></source>
        <translation>Динамик не найден</translation>
    </message>
    <message id="ID_Engine_NoSpeakerSelected">
        <source></source>
        <translation>Динамик не выбран</translation>
    </message>
    <message id="ID_Engine_NotConnected">
        <source></source>
        <translation>Не подключено</translation>
    </message>
    <message id="ID_Engine_Scenario_Base">
        <source></source>
        <translation>должно быть именем встроенного сценария</translation>
    </message>
    <message id="ID_Engine_Scenario_Levels">
        <source></source>
        <translation>должно быть [миллисекунды, уровень]: по возрастанию от 0 и уровень от 0 до 1</translation>
    </message>
    <message id="ID_Engine_Scenario_NoDevice">
        <source></source>
        <translation>в этом сценарии нет такого %1</translation>
    </message>
    <message id="ID_Engine_Scenario_NoVolume">
        <source></source>
        <translation>у камеры нет громкости</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRead">
        <source></source>
        <translation>не удаётся прочитать: %1</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRegular">
        <source></source>
        <translation>это не обычный файл; укажите файл сценария</translation>
    </message>
    <message id="ID_Engine_Scenario_SameId">
        <source></source>
        <translation>должно быть единственным в своём списке</translation>
    </message>
    <message id="ID_Engine_Scenario_TooLarge">
        <source></source>
        <translation>больше 1 МиБ; укажите файл сценария</translation>
    </message>
    <message id="ID_Engine_Scenario_TooManyDevices">
        <source></source>
        <translation>более %1 разных устройств этого вида; подключите то, которое уже было</translation>
    </message>
    <message id="ID_Engine_Scenario_Unknown">
        <source></source>
        <translation>нет ни такого файла, ни встроенного сценария с этим именем (есть %1)</translation>
    </message>
    <message id="ID_Engine_SoundNotBuilt">
        <source></source>
        <translation>Нет звука: система не поддерживается</translation>
    </message>
    <message id="ID_Engine_SoundServerLost">
        <source></source>
        <translation>Служба звука не работает</translation>
    </message>
    <message id="ID_Engine_SoundServerSilent">
        <source></source>
        <translation>Служба звука не отвечает</translation>
    </message>
    <message id="ID_Engine_TelephoneQuality">
        <source></source>
        <translation>%1 (телефонное качество)</translation>
    </message>
    <message id="ID_HeadsetPage_2">
        <source></source>
        <translation>2. Увеличьте громкость и проверьте, что звук не отключён.</translation>
    </message>
    <message id="ID_HeadsetPage_3">
        <source></source>
        <translation>3. Вставьте штекер до упора или переподключите Bluetooth.</translation>
    </message>
    <message id="ID_HeadsetPage_4">
        <source></source>
        <translation>4. Выберите то же устройство в настройках звука системы.</translation>
    </message>
    <message id="ID_HeadsetPage_Bubble">
        <source></source>
        <translation>Пузыри</translation>
    </message>
    <message id="ID_HeadsetPage_CanHear">
        <source></source>
        <translation>Да, слышу</translation>
    </message>
    <message id="ID_HeadsetPage_CanNotHear">
        <source></source>
        <translation>Нет, не слышу</translation>
    </message>
    <message id="ID_HeadsetPage_ChoseWrong">
        <source></source>
        <translation>Выбран не тот звук</translation>
    </message>
    <message id="ID_HeadsetPage_ClickHere">
        <source></source>
        <translation>Не слышите звук? Нажмите здесь</translation>
    </message>
    <message id="ID_HeadsetPage_Doorbell">
        <source></source>
        <translation>Звонок</translation>
    </message>
    <message id="ID_HeadsetPage_Piano">
        <source></source>
        <translation>Пианино</translation>
    </message>
    <message id="ID_HeadsetPage_Play">
        <source></source>
        <translation>Пуск</translation>
    </message>
    <message id="ID_HeadsetPage_PlayAgain">
        <source></source>
        <translation>Снова</translation>
    </message>
    <message id="ID_HeadsetPage_Playing">
        <source></source>
        <translation>Звучит</translation>
    </message>
    <message id="ID_HeadsetPage_PleaseSelectTheAnswer">
        <source></source>
        <translation>Какой звук вы слышите?</translation>
    </message>
    <message id="ID_HeadsetPage_Saxophone">
        <source></source>
        <translation>Саксофон</translation>
    </message>
    <message id="ID_HeadsetPage_Seagull">
        <source></source>
        <translation>Чайка</translation>
    </message>
    <message id="ID_HeadsetPage_Shutter">
        <source></source>
        <translation>Затвор</translation>
    </message>
    <message id="ID_HeadsetPage_Speaker">
        <source></source>
        <translation>Выход:</translation>
    </message>
    <message id="ID_HeadsetPage_Thunder">
        <source></source>
        <translation>Гром</translation>
    </message>
    <message id="ID_HeadsetPage_Tip">
        <source></source>
        <translation>Нажмите «Пуск», послушайте и выберите звук, который слышите.</translation>
    </message>
    <message id="ID_HeadsetPage_Typing">
        <source></source>
        <translation>Клавиши</translation>
    </message>
    <message id="ID_HeadsetPage_choseNo">
        <source></source>
        <translation>Вы не слышите звук</translation>
    </message>
    <message id="ID_HeadsetPage_play">
        <source></source>
        <translation>Пуск</translation>
    </message>
    <message id="ID_HeadsetPage_sound0">
        <source></source>
        <translation>Звук 1</translation>
    </message>
    <message id="ID_HeadsetPage_sound1">
        <source></source>
        <translation>Звук 2</translation>
    </message>
    <message id="ID_HeadsetPage_sound2">
        <source></source>
        <translation>Звук 3</translation>
    </message>
    <message id="ID_HeadsetPage_sound3">
        <source></source>
        <translation>Звук 4</translation>
    </message>
    <message id="ID_Host_Changes">
        <source></source>
        <translation>Изменения</translation>
    </message>
    <message id="ID_Host_Changes_None">
        <source></source>
        <translation>С тех пор ничего не изменилось.</translation>
    </message>
    <message id="ID_Host_Check_Loop">
        <source></source>
        <translation>Акустическая петля</translation>
    </message>
    <message id="ID_Host_Config_BadLine">
        <source></source>
        <translation>%1: каждая строка должна иметь вид KEY=VALUE, например server=HOST, или быть комментарием после точки с запятой; исправьте там</translation>
    </message>
    <message id="ID_Host_Config_BadValue">
        <source></source>
        <translation>%1: %2=%3: допустимо %4; исправьте там</translation>
    </message>
    <message id="ID_Host_Config_BadVariable">
        <source></source>
        <translation>%1=%2: допустимо %3</translation>
    </message>
    <message id="ID_Host_Config_UnknownKey">
        <source></source>
        <translation>%1: неизвестный ключ %2; есть ключи server, report-url и report-token-file</translation>
    </message>
    <message id="ID_Host_Config_Unreadable">
        <source></source>
        <translation>%1: не читается как файл конфигурации; поместите туда текстовый файл со строками вида server=HOST или удалите его</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerLost">
        <source></source>
        <translation>Служба камер не работает</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerSilent">
        <source></source>
        <translation>Служба камер не отвечает</translation>
    </message>
    <message id="ID_Host_Devices_Cameras">
        <source></source>
        <translation>Камеры</translation>
    </message>
    <message id="ID_Host_Devices_Microphones">
        <source></source>
        <translation>Микрофоны</translation>
    </message>
    <message id="ID_Host_Devices_None">
        <source></source>
        <translation>ничего не найдено</translation>
    </message>
    <message id="ID_Host_Devices_NotBuilt">
        <source></source>
        <translation>программа собрана без настоящих устройств (ENVCHECK_DEVICES): укажите --platform scripted</translation>
    </message>
    <message id="ID_Host_Devices_Speakers">
        <source></source>
        <translation>Динамики</translation>
    </message>
    <message id="ID_Host_Display_Gone">
        <source></source>
        <translation>дисплей пропал, и проверка вместе с ним: завершился X-сервер или композитор Wayland; запустите проверку снова</translation>
    </message>
    <message id="ID_Host_Display_None">
        <source></source>
        <translation>нет дисплея, на котором открыть проверку: запустите её из сеанса рабочего стола или через xvfb-run</translation>
    </message>
    <message id="ID_Host_Display_NotOpened">
        <source></source>
        <translation>не удаётся открыть дисплей %1: запустите проверку из сеанса рабочего стола или через xvfb-run</translation>
    </message>
    <message id="ID_Host_Exit_AllPassed">
        <source></source>
        <translation>всё пройдено</translation>
    </message>
    <message id="ID_Host_Exit_BadInput">
        <source></source>
        <translation>указанный файл непригоден</translation>
    </message>
    <message id="ID_Host_Exit_CannotWrite">
        <source></source>
        <translation>не удаётся записать файл или папку</translation>
    </message>
    <message id="ID_Host_Exit_LeftEarly">
        <source></source>
        <translation>прервано пользователем</translation>
    </message>
    <message id="ID_Host_Exit_PutOut">
        <source></source>
        <translation>сеанс завершён классом</translation>
    </message>
    <message id="ID_Host_Exit_SomeFailed">
        <source></source>
        <translation>одна из проверок не пройдена</translation>
    </message>
    <message id="ID_Host_Exit_TourProblems">
        <source></source>
        <translation>обход нашёл ошибку</translation>
    </message>
    <message id="ID_Host_Exit_Unavailable">
        <source></source>
        <translation>нет дисплея, порта или сервера</translation>
    </message>
    <message id="ID_Host_Exit_WrongUsage">
        <source></source>
        <translation>неверный вызов: параметр назван в сообщении</translation>
    </message>
    <message id="ID_Host_Figure_Answered">
        <source></source>
        <translation>Получено ответов</translation>
    </message>
    <message id="ID_Host_Figure_Bandwidth">
        <source></source>
        <translation>Наибольшая уловленная частота</translation>
    </message>
    <message id="ID_Host_Figure_Black">
        <source></source>
        <translation>Чёрные кадры</translation>
    </message>
    <message id="ID_Host_Figure_Brightness">
        <source></source>
        <translation>Яркость</translation>
    </message>
    <message id="ID_Host_Figure_Clipped">
        <source></source>
        <translation>Перегруженный звук</translation>
    </message>
    <message id="ID_Host_Figure_DefaultAfter">
        <source></source>
        <translation>Устройство по умолчанию после проверки</translation>
    </message>
    <message id="ID_Host_Figure_DefaultBefore">
        <source></source>
        <translation>Устройство по умолчанию до проверки</translation>
    </message>
    <message id="ID_Host_Figure_Delay">
        <source></source>
        <translation>Задержка туда и обратно (медиана)</translation>
    </message>
    <message id="ID_Host_Figure_Delay5">
        <source></source>
        <translation>Задержка туда и обратно (5-й процентиль)</translation>
    </message>
    <message id="ID_Host_Figure_Delay95">
        <source></source>
        <translation>Задержка туда и обратно (95-й процентиль)</translation>
    </message>
    <message id="ID_Host_Figure_FirstPicture">
        <source></source>
        <translation>Время до первого кадра</translation>
    </message>
    <message id="ID_Host_Figure_Frozen">
        <source></source>
        <translation>Застывшие кадры</translation>
    </message>
    <message id="ID_Host_Figure_Height">
        <source></source>
        <translation>Высота кадра</translation>
    </message>
    <message id="ID_Host_Figure_HumFrequency">
        <source></source>
        <translation>Частота сетевого фона</translation>
    </message>
    <message id="ID_Host_Figure_HumShare">
        <source></source>
        <translation>Доля сетевого фона в шуме</translation>
    </message>
    <message id="ID_Host_Figure_Jitter">
        <source></source>
        <translation>Джиттер</translation>
    </message>
    <message id="ID_Host_Figure_Level">
        <source></source>
        <translation>Уровень</translation>
    </message>
    <message id="ID_Host_Figure_LoopDelay">
        <source></source>
        <translation>Задержка от динамика до микрофона</translation>
    </message>
    <message id="ID_Host_Figure_LoopLevel">
        <source></source>
        <translation>Уровень на микрофоне</translation>
    </message>
    <message id="ID_Host_Figure_Loss">
        <source></source>
        <translation>Потери пакетов</translation>
    </message>
    <message id="ID_Host_Figure_Modes">
        <source></source>
        <translation>Режимы камеры</translation>
    </message>
    <message id="ID_Host_Figure_MovedByUser">
        <source></source>
        <translation>Громкость изменена пользователем</translation>
    </message>
    <message id="ID_Host_Figure_MutedAfter">
        <source></source>
        <translation>Звук отключён после проверки</translation>
    </message>
    <message id="ID_Host_Figure_MutedBefore">
        <source></source>
        <translation>Звук отключён до проверки</translation>
    </message>
    <message id="ID_Host_Figure_NoiseFloor">
        <source></source>
        <translation>Уровень шума</translation>
    </message>
    <message id="ID_Host_Figure_OneWayDelay">
        <source></source>
        <translation>Задержка в одну сторону (половина задержки туда и обратно)</translation>
    </message>
    <message id="ID_Host_Figure_Peak">
        <source></source>
        <translation>Самый громкий звук</translation>
    </message>
    <message id="ID_Host_Figure_Pictures">
        <source></source>
        <translation>Всего кадров</translation>
    </message>
    <message id="ID_Host_Figure_Program">
        <source></source>
        <translation>Используется программой</translation>
    </message>
    <message id="ID_Host_Figure_Rate">
        <source></source>
        <translation>Частота кадров</translation>
    </message>
    <message id="ID_Host_Figure_Seconds">
        <source></source>
        <translation>Время измерения</translation>
    </message>
    <message id="ID_Host_Figure_Sent">
        <source></source>
        <translation>Отправлено запросов</translation>
    </message>
    <message id="ID_Host_Figure_SoundHeard">
        <source></source>
        <translation>Звук уловлен</translation>
    </message>
    <message id="ID_Host_Figure_SoundPlayed">
        <source></source>
        <translation>Воспроизведённый звук</translation>
    </message>
    <message id="ID_Host_Figure_VolumeAfter">
        <source></source>
        <translation>Громкость после проверки</translation>
    </message>
    <message id="ID_Host_Figure_VolumeBefore">
        <source></source>
        <translation>Громкость до проверки</translation>
    </message>
    <message id="ID_Host_Figure_Width">
        <source></source>
        <translation>Ширина кадра</translation>
    </message>
    <message id="ID_Host_File_IsFolder">
        <source></source>
        <translation>это папка; укажите файл в ней</translation>
    </message>
    <message id="ID_Host_File_NameOther">
        <source></source>
        <translation>%1; укажите другой файл</translation>
    </message>
    <message id="ID_Host_File_NoFolder">
        <source></source>
        <translation>нет папки %1; создайте её или укажите другой файл</translation>
    </message>
    <message id="ID_Host_File_NoObject">
        <source></source>
        <translation>документ не является объектом</translation>
    </message>
    <message id="ID_Host_File_NoReport">
        <source></source>
        <translation>%1 — не отчёт в формате JSON (%2); укажите отчёт, записанный проверкой</translation>
    </message>
    <message id="ID_Host_File_NoRight">
        <source></source>
        <translation>у вас нет права записи туда; укажите другой файл</translation>
    </message>
    <message id="ID_Host_File_NotOrdinary">
        <source></source>
        <translation>это не обычный файл; укажите другой</translation>
    </message>
    <message id="ID_Host_File_NotRead">
        <source></source>
        <translation>не удаётся прочитать %1: %2; укажите отчёт, записанный проверкой</translation>
    </message>
    <message id="ID_Host_File_NotWritten">
        <source></source>
        <translation>не удаётся записать %1: %2</translation>
    </message>
    <message id="ID_Host_File_TooLarge">
        <source></source>
        <translation>он слишком большой</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodPicture">
        <source></source>
        <translation>Ответ «нет», но движущееся изображение поступало.</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodSound">
        <source></source>
        <translation>Ответ «нет», но микрофон улавливал звук.</translation>
    </message>
    <message id="ID_Host_Flag_NoToRightSound">
        <source></source>
        <translation>Ответ «нет», но звук выбран верно.</translation>
    </message>
    <message id="ID_Host_Flag_YesToBlackPicture">
        <source></source>
        <translation>Ответ «да» при чёрном изображении.</translation>
    </message>
    <message id="ID_Host_Flag_YesToFrozenPicture">
        <source></source>
        <translation>Ответ «да» при застывшем изображении.</translation>
    </message>
    <message id="ID_Host_Flag_YesToMutedSpeaker">
        <source></source>
        <translation>Ответ «да» при отключённом звуке.</translation>
    </message>
    <message id="ID_Host_Flag_YesToSilence">
        <source></source>
        <translation>Ответ «да», но микрофон ничего не улавливал.</translation>
    </message>
    <message id="ID_Host_Flag_YesToWrongSound">
        <source></source>
        <translation>Ответ «да», но верный звук не выбран.</translation>
    </message>
    <message id="ID_Host_Flag_YesWithoutPictures">
        <source></source>
        <translation>Ответ «да», но изображения не было.</translation>
    </message>
    <message id="ID_Host_Grade">
        <source></source>
        <translation>Качество сети</translation>
    </message>
    <message id="ID_Host_Grade_Fair">
        <source></source>
        <translation>средне</translation>
    </message>
    <message id="ID_Host_Grade_FairUpTo">
        <source></source>
        <translation>средне до %1</translation>
    </message>
    <message id="ID_Host_Grade_Good">
        <source></source>
        <translation>хорошо</translation>
    </message>
    <message id="ID_Host_Grade_GoodUpTo">
        <source></source>
        <translation>хорошо до %1</translation>
    </message>
    <message id="ID_Host_Grade_Poor">
        <source></source>
        <translation>плохо</translation>
    </message>
    <message id="ID_Host_Help_Arguments">
        <source></source>
        <translation>Аргументы:</translation>
    </message>
    <message id="ID_Host_Help_Check">
        <source></source>
        <translation>Проверяет сеть, камеру, динамик и микрофон перед онлайн-уроком.</translation>
    </message>
    <message id="ID_Host_Help_Commands">
        <source></source>
        <translation>Команды:</translation>
    </message>
    <message id="ID_Host_Help_Devices">
        <source></source>
        <translation>Показывает камеры, микрофоны и динамики с их состоянием. Код выхода 0: списки полные, даже если ничего не найдено; 69: служба камер или звука не работает или не отвечает.</translation>
    </message>
    <message id="ID_Host_Help_ExitCodes">
        <source></source>
        <translation>Коды завершения:</translation>
    </message>
    <message id="ID_Host_Help_File">
        <source></source>
        <translation>Отчёт, записанный проверкой; - означает стандартный ввод. Без него: отчёт последней проверки.</translation>
    </message>
    <message id="ID_Host_Help_History">
        <source></source>
        <translation>Показывает прежние проверки с их результатами и отчётами.</translation>
    </message>
    <message id="ID_Host_Help_Network">
        <source></source>
        <translation>Измеряет задержку и потери пакетов и сразу выводит значения.</translation>
    </message>
    <message id="ID_Host_Help_NoCommand">
        <source></source>
        <translation>Без команды открывается проверка. У каждой команды своя справка (--help).</translation>
    </message>
    <message id="ID_Host_Help_Options">
        <source></source>
        <translation>Параметры:</translation>
    </message>
    <message id="ID_Host_Help_Report">
        <source></source>
        <translation>Показывает отчёты прежних проверок как текст, HTML или JSON либо несколько в одной таблице.</translation>
    </message>
    <message id="ID_Host_Help_Serve">
        <source></source>
        <translation>Отвечает на измерения других компьютеров как небольшой сервер STUN, пока его не остановят.</translation>
    </message>
    <message id="ID_Host_Help_Usage">
        <source></source>
        <translation>Использование: %1</translation>
    </message>
    <message id="ID_Host_Help_UsageOptions">
        <source></source>
        <translation>[параметры]</translation>
    </message>
    <message id="ID_Host_History_NoReport">
        <source></source>
        <translation>отчётов о прежних проверках нет; запустите проверку или укажите файл отчёта (FILE)</translation>
    </message>
    <message id="ID_Host_History_None">
        <source></source>
        <translation>Прежних проверок нет.</translation>
    </message>
    <message id="ID_Host_Language_Unknown">
        <source></source>
        <translation>--language %1: на этом языке текстов нет; укажите один из этих: %2</translation>
    </message>
    <message id="ID_Host_LastGoodRun">
        <source></source>
        <translation>Последняя успешная проверка</translation>
    </message>
    <message id="ID_Host_LastGoodRun_None">
        <source></source>
        <translation>Ранее не было полностью успешной проверки.</translation>
    </message>
    <message id="ID_Host_MeasuringFailed">
        <source></source>
        <translation>измерить не удалось: %1</translation>
    </message>
    <message id="ID_Host_Network_Ends">
        <source></source>
        <translation>сервер %1, этот компьютер %2</translation>
    </message>
    <message id="ID_Host_Network_Figures">
        <source></source>
        <translation>задержка %1 мс, джиттер %2 мс, потери %3 %, отправлено запросов %4, получено ответов %5: %6</translation>
    </message>
    <message id="ID_Host_Network_NameServer">
        <source></source>
        <translation>не измерено: нет сервера; укажите его через --server, через %1 или в %2</translation>
    </message>
    <message id="ID_Host_Network_NoAnswer">
        <source></source>
        <translation>нет ответа, потери %1 %, отправлено запросов %2, получено ответов %3</translation>
    </message>
    <message id="ID_Host_Network_NoRoute">
        <source></source>
        <translation>нет пути к серверу, потери %1 %, отправлено %2, отвечено %3</translation>
    </message>
    <message id="ID_Host_Network_NoSuchServer">
        <source></source>
        <translation>такого сервера нет, потери %1 %, отправлено запросов %2, получено ответов %3</translation>
    </message>
    <message id="ID_Host_Network_Refused">
        <source></source>
        <translation>сервер отказывает, потери %1 %, отправлено %2, отвечено %3</translation>
    </message>
    <message id="ID_Host_No">
        <source></source>
        <translation>Нет</translation>
    </message>
    <message id="ID_Host_NoAnswer">
        <source></source>
        <translation>Нет ответа</translation>
    </message>
    <message id="ID_Host_NotMeasured">
        <source></source>
        <translation>не измерено: %1</translation>
    </message>
    <message id="ID_Host_Option_Account">
        <source></source>
        <translation>Показываемая учётная запись; по умолчанию пользователь системы.</translation>
    </message>
    <message id="ID_Host_Option_Cdn">
        <source></source>
        <translation>Показываемая сеть CDN.</translation>
    </message>
    <message id="ID_Host_Option_Count">
        <source></source>
        <translation>Завершить после N значений; иначе команда работает, пока её не остановят.</translation>
    </message>
    <message id="ID_Host_Option_Diagnose">
        <source></source>
        <translation>Измерить как с --unattended и упаковать отчёт, устройства, версии и журнал в FILE.zip для тех, кто ищет причину. Без --redact имена и адреса не включаются.</translation>
    </message>
    <message id="ID_Host_Option_FilesFrom">
        <source></source>
        <translation>Брать имена отчётов также из FILE, по одному в строке; - означает стандартный ввод.</translation>
    </message>
    <message id="ID_Host_Option_Format">
        <source></source>
        <translation>text (по умолчанию), html или json; для многих отчётов room (таблица), map (страница с плиткой на каждый отчёт), csv или jsonl.</translation>
    </message>
    <message id="ID_Host_Option_Help">
        <source></source>
        <translation>Показать эту справку.</translation>
    </message>
    <message id="ID_Host_Option_Json">
        <source></source>
        <translation>Вывести JSON вместо таблицы.</translation>
    </message>
    <message id="ID_Host_Option_Language">
        <source></source>
        <translation>Язык текстов, например en или zh_CN; по умолчанию язык системы.</translation>
    </message>
    <message id="ID_Host_Option_Loop">
        <source></source>
        <translation>С --unattended: дополнительно секунду воспроизводит тихий нарастающий тон на выбранном динамике и ищет его в выбранном микрофоне. Это слышно.</translation>
    </message>
    <message id="ID_Host_Option_Nickname">
        <source></source>
        <translation>Показываемый псевдоним; по умолчанию пользователь системы.</translation>
    </message>
    <message id="ID_Host_Option_Platform">
        <source></source>
        <translation>Проверяемые устройства: devices (этого компьютера, по умолчанию) или scripted (имитируемые).</translation>
    </message>
    <message id="ID_Host_Option_Port">
        <source></source>
        <translation>Порт UDP для ответов; по умолчанию 3478, 0 — любой свободный.</translation>
    </message>
    <message id="ID_Host_Option_Quiet">
        <source></source>
        <translation>Не открывать окно с итогом после проверки с ошибками.</translation>
    </message>
    <message id="ID_Host_Option_Redact">
        <source></source>
        <translation>Что опустить: none (ничего, по умолчанию), personal (адреса, имена и учётные записи) или hash (заменить их короткими кодами).</translation>
    </message>
    <message id="ID_Host_Option_Report">
        <source></source>
        <translation>Записать отчёт в FILE вместо обычного места; расширение (.json, .html или .txt) задаёт формат, а - означает стандартный вывод, как JSON.</translation>
    </message>
    <message id="ID_Host_Option_ReportTokenFile">
        <source></source>
        <translation>Файл с токеном, который требует сервер отчётов. Читать его может только владелец или группа.</translation>
    </message>
    <message id="ID_Host_Option_ReportUrl">
        <source></source>
        <translation>Адрес, на который отправляются отчёт и его коды. Без --redact в нём нет имён и адресов.</translation>
    </message>
    <message id="ID_Host_Option_Results">
        <source></source>
        <translation>Записывать также сами результаты в FILE как JSON после каждого изменения; - означает стандартный вывод, в конце.</translation>
    </message>
    <message id="ID_Host_Option_Scenario">
        <source></source>
        <translation>Что делают имитируемые устройства: файл или имя готового сценария, например all-well. Подразумевает --platform scripted.</translation>
    </message>
    <message id="ID_Host_Option_Server">
        <source></source>
        <translation>Сервер STUN, до которого измеряются задержка и потери, также в виде stun:HOST:PORT. Без порта запрашиваются записи DNS домена (_stun._udp), иначе порт 3478. Его можно указать и в ENVCHECK_SERVER или в файле конфигурации. Без сервера сеть не измеряется: отвечает сам этот компьютер.</translation>
    </message>
    <message id="ID_Host_Option_Tour">
        <source></source>
        <translation>Автоматически пройти все шаги и сохранить снимок каждого в FOLDER.</translation>
    </message>
    <message id="ID_Host_Option_Unattended">
        <source></source>
        <translation>Измеряет без окна и без участия человека; --json ФАЙЛ (- для стандартного вывода) записывает отчёт. Коды выхода: 0 работает, 1 нужно исправить, 69 нет службы или сервера.</translation>
    </message>
    <message id="ID_Host_Option_Verbose">
        <source></source>
        <translation>Выводить журнал и в терминал.</translation>
    </message>
    <message id="ID_Host_Option_Version">
        <source></source>
        <translation>Показать версию.</translation>
    </message>
    <message id="ID_Host_Outcome_BrokenOff">
        <source></source>
        <translation>Без участия человека: прервано до конца измерений</translation>
    </message>
    <message id="ID_Host_Outcome_Failed">
        <source></source>
        <translation>Завершено с проблемами</translation>
    </message>
    <message id="ID_Host_Outcome_Faulty">
        <source></source>
        <translation>Без участия человека: что-то нужно исправить</translation>
    </message>
    <message id="ID_Host_Outcome_LeftEarly">
        <source></source>
        <translation>Прервано пользователем</translation>
    </message>
    <message id="ID_Host_Outcome_Passed">
        <source></source>
        <translation>Всё пройдено</translation>
    </message>
    <message id="ID_Host_Outcome_PutOut">
        <source></source>
        <translation>Сеанс завершён классом</translation>
    </message>
    <message id="ID_Host_Outcome_Unavailable">
        <source></source>
        <translation>Без участия человека: нет одной из служб, поэтому измерено не всё</translation>
    </message>
    <message id="ID_Host_Outcome_Works">
        <source></source>
        <translation>Без участия человека: всё измеренное работает</translation>
    </message>
    <message id="ID_Host_OutputNotWritten">
        <source></source>
        <translation>не удаётся записать вывод; проверьте, не заполнен ли диск</translation>
    </message>
    <message id="ID_Host_Reason_Absent">
        <source></source>
        <translation>нет устройства</translation>
    </message>
    <message id="ID_Host_Reason_Busy">
        <source></source>
        <translation>устройство занято другой программой</translation>
    </message>
    <message id="ID_Host_Reason_Denied">
        <source></source>
        <translation>система запрещает доступ</translation>
    </message>
    <message id="ID_Host_Reason_Failed">
        <source></source>
        <translation>сбой устройства</translation>
    </message>
    <message id="ID_Host_Reason_Hung">
        <source></source>
        <translation>устройство не отвечает</translation>
    </message>
    <message id="ID_Host_Reason_Muted">
        <source></source>
        <translation>звук устройства отключён</translation>
    </message>
    <message id="ID_Host_Reason_NoAnswer">
        <source></source>
        <translation>сервер не отвечает</translation>
    </message>
    <message id="ID_Host_Reason_NoRoute">
        <source></source>
        <translation>нет пути к серверу</translation>
    </message>
    <message id="ID_Host_Reason_NotBuilt">
        <source></source>
        <translation>не поддерживается в этой системе</translation>
    </message>
    <message id="ID_Host_Reason_NotOffered">
        <source></source>
        <translation>этот движок так не умеет</translation>
    </message>
    <message id="ID_Host_Reason_NotRecorded">
        <source></source>
        <translation>движок этого не записывает</translation>
    </message>
    <message id="ID_Host_Reason_Off">
        <source></source>
        <translation>устройство выключено</translation>
    </message>
    <message id="ID_Host_Reason_Refused">
        <source></source>
        <translation>сервер отказал</translation>
    </message>
    <message id="ID_Host_Reason_Scripted">
        <source></source>
        <translation>у имитируемого устройства нет этого значения</translation>
    </message>
    <message id="ID_Host_Reason_ServerLost">
        <source></source>
        <translation>служба звука не работает</translation>
    </message>
    <message id="ID_Host_Reason_ServerSilent">
        <source></source>
        <translation>служба звука не отвечает</translation>
    </message>
    <message id="ID_Host_Reason_Silent">
        <source></source>
        <translation>от устройства ничего не поступило</translation>
    </message>
    <message id="ID_Host_Reason_StepNotOpened">
        <source></source>
        <translation>этот шаг не открывался</translation>
    </message>
    <message id="ID_Host_Reason_Unreadable">
        <source></source>
        <translation>камера не передаёт формат, который можно показать</translation>
    </message>
    <message id="ID_Host_Reason_VolumeZero">
        <source></source>
        <translation>громкость равна 0</translation>
    </message>
    <message id="ID_Host_Redacted_Hash">
        <source></source>
        <translation>Адреса, имена и учётные записи заменены короткими кодами.</translation>
    </message>
    <message id="ID_Host_Redacted_Personal">
        <source></source>
        <translation>Адреса, имена и учётные записи опущены.</translation>
    </message>
    <message id="ID_Host_Remedy_Clipping">
        <source></source>
        <translation>Микрофон слишком громкий и искажает звук: уменьшите его громкость.</translation>
    </message>
    <message id="ID_Host_Remedy_Hum">
        <source></source>
        <translation>Микрофон гудит: попробуйте другой разъём или кабель и уберите его подальше от блоков питания.</translation>
    </message>
    <message id="ID_Host_Remedy_LoopNotHeard">
        <source></source>
        <translation>Микрофон не услышал динамик: сделайте громче оба и проверьте, что они относятся к одной гарнитуре или стоят в одной комнате.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerSilent">
        <source></source>
        <translation>Системная служба изображения и звука не ответила: выйдите из системы и войдите снова или перезагрузите компьютер.</translation>
    </message>
    <message id="ID_Host_ReportIsIn">
        <source></source>
        <translation>Отчёт находится в %1</translation>
    </message>
    <message id="ID_Host_Report_Answer">
        <source></source>
        <translation>Ответ</translation>
    </message>
    <message id="ID_Host_Report_BadTime">
        <source></source>
        <translation>должно быть временем вида 2026-03-01T08:30:00Z</translation>
    </message>
    <message id="ID_Host_Report_Causes">
        <source></source>
        <translation>Причины</translation>
    </message>
    <message id="ID_Host_Report_Computer">
        <source></source>
        <translation>Компьютер</translation>
    </message>
    <message id="ID_Host_Report_Contradiction">
        <source></source>
        <translation>Противоречие</translation>
    </message>
    <message id="ID_Host_Report_Count">
        <source></source>
        <translation>Отчёты</translation>
    </message>
    <message id="ID_Host_Report_Device">
        <source></source>
        <translation>Устройство</translation>
    </message>
    <message id="ID_Host_Report_Id">
        <source></source>
        <translation>Номер отчёта</translation>
    </message>
    <message id="ID_Host_Report_Later">
        <source></source>
        <translation>Измерено позже</translation>
    </message>
    <message id="ID_Host_Report_Measurements">
        <source></source>
        <translation>Измерения</translation>
    </message>
    <message id="ID_Host_Report_Notice">
        <source></source>
        <translation>Примечание</translation>
    </message>
    <message id="ID_Host_Report_OtherFormat">
        <source></source>
        <translation>это не отчёт проверки</translation>
    </message>
    <message id="ID_Host_Report_OtherVersion">
        <source></source>
        <translation>это %1, а программа читает версию %2</translation>
    </message>
    <message id="ID_Host_Report_Outcome">
        <source></source>
        <translation>Итог</translation>
    </message>
    <message id="ID_Host_Report_Program">
        <source></source>
        <translation>Программа</translation>
    </message>
    <message id="ID_Host_Report_Result">
        <source></source>
        <translation>Результат</translation>
    </message>
    <message id="ID_Host_Report_RightSound">
        <source></source>
        <translation>Выбран верный звук</translation>
    </message>
    <message id="ID_Host_Report_Scripted">
        <source></source>
        <translation>Проверялись имитируемые устройства, а не устройства этого компьютера.</translation>
    </message>
    <message id="ID_Host_Report_Summary">
        <source></source>
        <translation>Сводка</translation>
    </message>
    <message id="ID_Host_Report_System">
        <source></source>
        <translation>Компьютер и учётная запись</translation>
    </message>
    <message id="ID_Host_Report_Time">
        <source></source>
        <translation>Дата и время</translation>
    </message>
    <message id="ID_Host_Report_Title">
        <source></source>
        <translation>Отчёт о проверке системы</translation>
    </message>
    <message id="ID_Host_Serve_Answering">
        <source></source>
        <translation>Ответы на порту UDP %1. Другие компьютеры измеряют путь сюда с помощью --server stun:HOST:%1</translation>
    </message>
    <message id="ID_Host_Serve_NoPort">
        <source></source>
        <translation>не удаётся отвечать на порту UDP %1: %2. Выберите другой с помощью --port</translation>
    </message>
    <message id="ID_Host_Serve_NotBuilt">
        <source></source>
        <translation>для serve нужна программа, собранная с настоящими устройствами (ENVCHECK_DEVICES)</translation>
    </message>
    <message id="ID_Host_State_Absent">
        <source></source>
        <translation>не подключено</translation>
    </message>
    <message id="ID_Host_State_Busy">
        <source></source>
        <translation>занято</translation>
    </message>
    <message id="ID_Host_State_Denied">
        <source></source>
        <translation>нет доступа</translation>
    </message>
    <message id="ID_Host_State_Failed">
        <source></source>
        <translation>сбой</translation>
    </message>
    <message id="ID_Host_State_Hung">
        <source></source>
        <translation>не отвечает</translation>
    </message>
    <message id="ID_Host_State_Off">
        <source></source>
        <translation>выключено</translation>
    </message>
    <message id="ID_Host_State_Ready">
        <source></source>
        <translation>готово</translation>
    </message>
    <message id="ID_Host_State_Silent">
        <source></source>
        <translation>нет сигнала</translation>
    </message>
    <message id="ID_Host_State_Working">
        <source></source>
        <translation>работает</translation>
    </message>
    <message id="ID_Host_Takes_Ending">
        <source></source>
        <translation>имя с окончанием %1 или - для стандартного вывода</translation>
    </message>
    <message id="ID_Host_Takes_FileEnding">
        <source></source>
        <translation>имя файла с окончанием %1</translation>
    </message>
    <message id="ID_Host_Takes_Number">
        <source></source>
        <translation>число от %1 до %2</translation>
    </message>
    <message id="ID_Host_Takes_OneOf">
        <source></source>
        <translation>одно из значений: %1</translation>
    </message>
    <message id="ID_Host_Takes_Server">
        <source></source>
        <translation>HOST или HOST:PORT, с stun: впереди или без, например stun:stun.example.org:3478</translation>
    </message>
    <message id="ID_Host_Takes_WebAddress">
        <source></source>
        <translation>адрес http или https</translation>
    </message>
    <message id="ID_Host_Token_NoToken">
        <source></source>
        <translation>%1: это не токен; нужна одна строка из латинских букв, цифр и знаков - . _ ~ + /, с = в конце</translation>
    </message>
    <message id="ID_Host_Token_NotEncrypted">
        <source></source>
        <translation>%1: токен отправляется только по https; укажите адрес https или уберите токен</translation>
    </message>
    <message id="ID_Host_Token_NotRead">
        <source></source>
        <translation>не удаётся прочитать %1: %2; укажите файл с токеном сервера отчётов</translation>
    </message>
    <message id="ID_Host_Token_Open">
        <source></source>
        <translation>в %1 лежит токен, а читать или изменять файл может любой пользователь; исправьте: chmod o= %1</translation>
    </message>
    <message id="ID_Host_Tour_Done">
        <source></source>
        <translation>Снимков: %1, папка %2; все они показаны в index.html.</translation>
    </message>
    <message id="ID_Host_Tour_NoFolder">
        <source></source>
        <translation>--tour %1: не удаётся создать эту папку; укажите другую</translation>
    </message>
    <message id="ID_Host_Tour_NotWritten">
        <source></source>
        <translation>%1: %2; укажите другую папку</translation>
    </message>
    <message id="ID_Host_Upload_Kept">
        <source></source>
        <translation>Отчёт не дошёл до %1: %2. Он сохранён, и следующий запуск отправит его ещё раз.</translation>
    </message>
    <message id="ID_Host_Upload_NoAnswer">
        <source></source>
        <translation>нет ответа в срок</translation>
    </message>
    <message id="ID_Host_Upload_Refused">
        <source></source>
        <translation>%1 не принимает отчёт: %2. Повторно он не отправляется.</translation>
    </message>
    <message id="ID_Host_Upload_Sending">
        <source></source>
        <translation>Отчёт отправляется на %1 …</translation>
    </message>
    <message id="ID_Host_Upload_WrongToken">
        <source></source>
        <translation>токена нет или он неверен (HTTP %1)</translation>
    </message>
    <message id="ID_Host_Usage_EmptyName">
        <source></source>
        <translation>для --%1 нужно непустое имя</translation>
    </message>
    <message id="ID_Host_Usage_ExtraArgument">
        <source></source>
        <translation>лишний аргумент «%1»: см. --help</translation>
    </message>
    <message id="ID_Host_Usage_LeaveOneOut">
        <source></source>
        <translation>%1 не сочетается с %2: уберите одно из них</translation>
    </message>
    <message id="ID_Host_Usage_Needs">
        <source></source>
        <translation>для --%1 нужен --%2: добавьте его или уберите --%1</translation>
    </message>
    <message id="ID_Host_Usage_OtherCommand">
        <source></source>
        <translation>--%1 не сочетается с %2: см. --help</translation>
    </message>
    <message id="ID_Host_Usage_SamePlace">
        <source></source>
        <translation>--%1 и --%2 записали бы в одно и то же место (%3): укажите разные</translation>
    </message>
    <message id="ID_Host_Usage_SeeHelp">
        <source></source>
        <translation>%1 См. --help.</translation>
    </message>
    <message id="ID_Host_Usage_Takes">
        <source></source>
        <translation>--%1 %2: допускается %3</translation>
    </message>
    <message id="ID_Host_Usage_TheCheck">
        <source></source>
        <translation>проверкой</translation>
    </message>
    <message id="ID_Host_Usage_UnknownCommand">
        <source></source>
        <translation>неизвестная команда «%1»: см. --help</translation>
    </message>
    <message id="ID_Host_Verdict_Faulty">
        <source></source>
        <translation>Нужно исправить</translation>
    </message>
    <message id="ID_Host_Verdict_Heard">
        <source></source>
        <translation>Слышно</translation>
    </message>
    <message id="ID_Host_Verdict_NotHeard">
        <source></source>
        <translation>Не слышно</translation>
    </message>
    <message id="ID_Host_Verdict_NotTried">
        <source></source>
        <translation>Не проверялось</translation>
    </message>
    <message id="ID_Host_Verdict_Unmeasured">
        <source></source>
        <translation>Не измерено</translation>
    </message>
    <message id="ID_Host_Verdict_Works">
        <source></source>
        <translation>Работает</translation>
    </message>
    <message id="ID_Host_Yes">
        <source></source>
        <translation>Да</translation>
    </message>
    <message id="ID_Kestrel_SystemTesting">
        <source></source>
        <translation>Проверка системы</translation>
    </message>
    <message id="ID_MessageBox_Critical">
        <source></source>
        <translation>Ошибка</translation>
    </message>
    <message id="ID_MessageBox_Information">
        <source></source>
        <translation>Сведения</translation>
    </message>
    <message id="ID_MessageBox_Question">
        <source></source>
        <translation>Вопрос</translation>
    </message>
    <message id="ID_MessageBox_Warning">
        <source></source>
        <translation>Внимание</translation>
    </message>
    <message id="ID_Microphone">
        <source></source>
        <translation>Вход:</translation>
    </message>
    <message id="ID_MicrophonePage_2">
        <source></source>
        <translation>2. Включите микрофон: проверьте переключатель или клавишу.</translation>
    </message>
    <message id="ID_MicrophonePage_3">
        <source></source>
        <translation>3. Увеличьте громкость и говорите ближе к микрофону.</translation>
    </message>
    <message id="ID_MicrophonePage_4">
        <source></source>
        <translation>4. Разрешите микрофон в настройках конфиденциальности.</translation>
    </message>
    <message id="ID_MicrophonePage_Again">
        <source></source>
        <translation>Снова</translation>
    </message>
    <message id="ID_MicrophonePage_CanHearOrSee">
        <source></source>
        <translation>Да, слышу и вижу</translation>
    </message>
    <message id="ID_MicrophonePage_CanNotHearOrSee">
        <source></source>
        <translation>Не слышу, не вижу</translation>
    </message>
    <message id="ID_MicrophonePage_ChoseNo">
        <source></source>
        <translation>Не слышно голоса или нет полоски</translation>
    </message>
    <message id="ID_MicrophonePage_ClickHere">
        <source></source>
        <translation>Нет голоса или полоски? Нажмите здесь</translation>
    </message>
    <message id="ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable">
        <source></source>
        <translation>Микрофон выключен. Выберите его здесь или включите.</translation>
    </message>
    <message id="ID_MicrophonePage_MayNoisy">
        <source></source>
        <translation>Выше 100 возможен шум.</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneDisabled">
        <source></source>
        <translation>Микрофон выключен</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneTest">
        <source></source>
        <translation>Нажмите «Запись» и посчитайте вслух от 1 до 10. Слушайте свой голос и следите, движется ли зелёная полоска.</translation>
    </message>
    <message id="ID_MicrophonePage_NoMicrophoneWasDetected">
        <source></source>
        <translation>Микрофон не найден</translation>
    </message>
    <message id="ID_MicrophonePage_NoVoiceWasRecorded">
        <source></source>
        <translation>Микрофон не улавливает звук</translation>
    </message>
    <message id="ID_MicrophonePage_OfS">
        <source></source>
        <translation>%1 с</translation>
    </message>
    <message id="ID_MicrophonePage_Recording">
        <source></source>
        <translation>Идёт…</translation>
    </message>
    <message id="ID_Microphone_Check">
        <source></source>
        <translation>Голос</translation>
    </message>
    <message id="ID_NetworkPage_1">
        <source></source>
        <translation>1. Подойдите ближе к роутеру Wi-Fi или подключите кабель.</translation>
    </message>
    <message id="ID_NetworkPage_2">
        <source></source>
        <translation>2. Остановите загрузки и видео, также на других устройствах.</translation>
    </message>
    <message id="ID_NetworkPage_3">
        <source></source>
        <translation>3. Отключите VPN и прокси или перезапустите роутер.</translation>
    </message>
    <message id="ID_NetworkPage_Account">
        <source></source>
        <translation>Учётная запись:</translation>
    </message>
    <message id="ID_NetworkPage_AvailableCacheSpace">
        <source></source>
        <translation>Место для кэша:</translation>
    </message>
    <message id="ID_NetworkPage_CPU">
        <source></source>
        <translation>Процессор:</translation>
    </message>
    <message id="ID_NetworkPage_ClickHere">
        <source></source>
        <translation>Сеть медленная или нестабильная? Нажмите здесь</translation>
    </message>
    <message id="ID_NetworkPage_Client">
        <source></source>
        <translation>Клиент:</translation>
    </message>
    <message id="ID_NetworkPage_LostRate">
        <source></source>
        <translation>Потери пакетов:</translation>
    </message>
    <message id="ID_NetworkPage_NetworkDelay">
        <source></source>
        <translation>Задержка сети:</translation>
    </message>
    <message id="ID_NetworkPage_NetworkSlowOrUnstable">
        <source></source>
        <translation>Сеть медленная или нестабильная</translation>
    </message>
    <message id="ID_NetworkPage_OS">
        <source></source>
        <translation>Система:</translation>
    </message>
    <message id="ID_NewLogin_Server">
        <source></source>
        <translation>Сервер:</translation>
    </message>
    <message id="ID_Next">
        <source></source>
        <translation>Далее</translation>
    </message>
    <message id="ID_Nickname_NetworkPage">
        <source></source>
        <translation>Псевдоним:</translation>
    </message>
    <message id="ID_OK">
        <source></source>
        <translation>Готово</translation>
    </message>
    <message id="ID_Record">
        <source></source>
        <translation>Запись</translation>
    </message>
    <message id="ID_Skip">
        <source></source>
        <translation>Пропустить</translation>
    </message>
    <message id="ID_Volume">
        <source></source>
        <translation>Звук:</translation>
    </message>
    <message id="ID_WelcomePage_StartTest">
        <source></source>
        <translation>Начать проверку</translation>
    </message>
    <message id="ID_WelcomePage_Welcome">
        <source></source>
        <translation>Добро пожаловать в онлайн-класс</translation>
    </message>
    <message id="ID_hardwaremgrinterface_NoSpeakerFound">
        <source></source>
        <translation>Динамик не найден</translation>
    </message>
    <message id="ID_lumcamera_NoWebcamFound">
        <source></source>
        <translation>Камера не найдена</translation>
    </message>
    <message id="ID_Host_Reason_NoServer">
        <source></source>
        <translation>нет сервера</translation>
    </message>
    <message id="ID_Host_Reason_NoSuchHost">
        <source></source>
        <translation>имя сервера неизвестно</translation>
    </message>
    <message id="ID_Host_Remedy">
        <source></source>
        <translation>Что делать</translation>
    </message>
    <message id="ID_Host_Remedy_NoServer">
        <source></source>
        <translation>Измерен только этот компьютер, потому что сервер не задан: узнайте сервер в своей школе и задайте его через --server или в файле настроек.</translation>
    </message>
    <message id="ID_Host_Remedy_NoAnswer">
        <source></source>
        <translation>Сервер не ответил: проверьте, что вы в сети и что брандмауэр не блокирует UDP.</translation>
    </message>
    <message id="ID_Host_Remedy_NoSuchHost">
        <source></source>
        <translation>Имя сервера неизвестно: проверьте, как оно написано и есть ли подключение к сети.</translation>
    </message>
    <message id="ID_Host_Remedy_Slow">
        <source></source>
        <translation>Соединение медленное: подключите кабель или подойдите ближе к роутеру Wi-Fi, остановите загрузки и другие звонки.</translation>
    </message>
    <message id="ID_Host_Remedy_Lossy">
        <source></source>
        <translation>По пути теряется слишком много данных: подключите кабель или подойдите ближе к роутеру Wi-Fi.</translation>
    </message>
    <message id="ID_Host_Remedy_LeftTooSoon">
        <source></source>
        <translation>Вы покинули этот шаг до начала измерений: подождите на нём, пока появятся значения.</translation>
    </message>
    <message id="ID_Host_Remedy_Absent">
        <source></source>
        <translation>Устройство не найдено: подключите или включите его и повторите проверку.</translation>
    </message>
    <message id="ID_Host_Remedy_Off">
        <source></source>
        <translation>Устройство отключено в списке: выберите там другое.</translation>
    </message>
    <message id="ID_Host_Remedy_Starting">
        <source></source>
        <translation>Устройство ещё запускалось: подождите немного дольше, прежде чем ответить.</translation>
    </message>
    <message id="ID_Host_Remedy_Busy">
        <source></source>
        <translation>Устройство занято другой программой: закройте её и повторите проверку.</translation>
    </message>
    <message id="ID_Host_Remedy_Denied">
        <source></source>
        <translation>Система запрещает доступ к устройству: разрешите его в настройках приватности.</translation>
    </message>
    <message id="ID_Host_Remedy_Hung">
        <source></source>
        <translation>Устройство не ответило: отключите и снова подключите его или перезагрузите компьютер.</translation>
    </message>
    <message id="ID_Host_Remedy_Stalled">
        <source></source>
        <translation>Камера не передавала изображение: отключите и снова подключите её или выберите другую.</translation>
    </message>
    <message id="ID_Host_Remedy_Black">
        <source></source>
        <translation>Изображение было чёрным: откройте шторку объектива и включите свет.</translation>
    </message>
    <message id="ID_Host_Remedy_Frozen">
        <source></source>
        <translation>Изображение застыло: отключите и снова подключите камеру.</translation>
    </message>
    <message id="ID_Host_Remedy_Unplugged">
        <source></source>
        <translation>Устройство отключилось во время проверки: подключите его снова и проверьте кабель.</translation>
    </message>
    <message id="ID_Host_Remedy_NotBuilt">
        <source></source>
        <translation>Эта программа не может использовать такие устройства в этой системе, поэтому проверьте своё в другой программе.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerLost">
        <source></source>
        <translation>Системная служба изображения и звука остановилась: выйдите из системы и войдите снова или перезагрузите компьютер.</translation>
    </message>
    <message id="ID_Host_Remedy_Failed">
        <source></source>
        <translation>Устройство вышло из строя: подключите его заново или попробуйте другое.</translation>
    </message>
    <message id="ID_Host_Remedy_Unreadable">
        <source></source>
        <translation>Камера не передаёт формат, который здесь можно показать: выберите другую камеру или другой формат в её настройках.</translation>
    </message>
    <message id="ID_Host_Remedy_Silent">
        <source></source>
        <translation>Микрофон ничего не записал: говорите ближе к нему, проверьте его переключатель или выберите другой в списке.</translation>
    </message>
    <message id="ID_Host_Remedy_Muted">
        <source></source>
        <translation>Звук устройства отключён: включите его.</translation>
    </message>
    <message id="ID_Host_Remedy_VolumeZero">
        <source></source>
        <translation>Громкость равна 0: увеличьте её.</translation>
    </message>
    <message id="ID_Host_Remedy_WrongSound">
        <source></source>
        <translation>Вы выбрали не тот звук, который воспроизводился: увеличьте громкость и послушайте ещё раз.</translation>
    </message>
    <message id="ID_Host_Remedy_NotSeen">
        <source></source>
        <translation>Вы себя не увидели, хотя камера передавала изображение: проверьте, какая камера выбрана.</translation>
    </message>
    <message id="ID_Host_Remedy_NotHeard">
        <source></source>
        <translation>Вы ничего не услышали, хотя звук воспроизводился: увеличьте громкость и проверьте, какой динамик выбран.</translation>
    </message>
    <message id="ID_Host_Remedy_SelfNotHeard">
        <source></source>
        <translation>Вы себя не услышали, хотя микрофон записал звук: увеличьте громкость и проверьте, какой динамик выбран.</translation>
    </message>
    <message id="ID_Host_Window_Title">
        <source></source>
        <translation>Результат проверки</translation>
    </message>
    <message id="ID_Host_Window_Copy">
        <source></source>
        <translation>Копировать</translation>
    </message>
    <message id="ID_Host_Window_Save">
        <source></source>
        <translation>Сохранить…</translation>
    </message>
    <message id="ID_Host_Window_Open">
        <source></source>
        <translation>Открыть отчёт</translation>
    </message>
    <message id="ID_Host_Window_Close">
        <source></source>
        <translation>Закрыть</translation>
    </message>
    <message id="ID_Host_Window_Copied">
        <source></source>
        <translation>Отчёт скопирован. Вставьте его, прежде чем закрыть это окно.</translation>
    </message>
    <message id="ID_Host_Window_Saved">
        <source></source>
        <translation>Отчёт сохранён в %1</translation>
    </message>
    <message id="ID_Host_Window_NotWritten">
        <source></source>
        <translation>Не удалось записать отчёт в %1. Выберите другое место.</translation>
    </message>
    <message id="ID_Host_Window_NotOpened">
        <source></source>
        <translation>Ни одна программа не смогла открыть отчёт. Он находится в %1</translation>
    </message>
</context>
</TS>
