<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name></name>
    <message id="ID_CameraPage_1">
        <source></source>
        <translation>1. تأكد من أن الجهاز موصول ومحدد في القائمة.</translation>
    </message>
    <message id="ID_CameraPage_2">
        <source></source>
        <translation>2. أغلق البرامج الأخرى التي تستخدم الكاميرا.</translation>
    </message>
    <message id="ID_CameraPage_3">
        <source></source>
        <translation>3. افتح غطاء العدسة أو شغّل الكاميرا من مفتاحها.</translation>
    </message>
    <message id="ID_CameraPage_4">
        <source></source>
        <translation>4. اسمح باستخدام الكاميرا في إعدادات الخصوصية للنظام.</translation>
    </message>
    <message id="ID_CameraPage_5">
        <source></source>
        <translation>5. أعد تشغيل الكمبيوتر أو جرّب جهازًا آخر.</translation>
    </message>
    <message id="ID_CameraPage_Camera">
        <source></source>
        <translation>الكاميرا:</translation>
    </message>
    <message id="ID_CameraPage_CameraDisabled">
        <source></source>
        <translation>الكاميرا متوقفة أو معطّلة</translation>
    </message>
    <message id="ID_CameraPage_CannotSee">
        <source></source>
        <translation>لا، لا أرى نفسي</translation>
    </message>
    <message id="ID_CameraPage_ClickHere">
        <source></source>
        <translation>لا ترى نفسك؟ انقر هنا</translation>
    </message>
    <message id="ID_CameraPage_DisabledWillMakeCameraUnusable">
        <source></source>
        <translation>الكاميرا متوقفة. اختر كاميرا هنا أو فعّلها.</translation>
    </message>
    <message id="ID_CameraPage_No">
        <source></source>
        <translation>لا أرى نفسي</translation>
    </message>
    <message id="ID_CameraPage_NoCameraImageWasDetected">
        <source></source>
        <translation>الكاميرا لا تعرض صورة</translation>
    </message>
    <message id="ID_CameraPage_NotDetected">
        <source></source>
        <translation>لم تتم الإجابة عن هذا الفحص</translation>
    </message>
    <message id="ID_CameraPage_Yes">
        <source></source>
        <translation>نعم، أرى نفسي</translation>
    </message>
    <message id="ID_CameraPage_choseNo">
        <source></source>
        <translation>أنت لا ترى نفسك</translation>
    </message>
    <message id="ID_Camera_Check">
        <source></source>
        <translation>الكاميرا</translation>
    </message>
    <message id="ID_CheckResultPage_Abnormal">
        <source></source>
        <translation>غير سليم</translation>
    </message>
    <message id="ID_CheckResultPage_CheckEquipmentAndRetest">
        <source></source>
        <translation>عالج المشكلة ثم كرر الفحص.</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentAbnormal">
        <source></source>
        <translation>هناك مشكلة</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentNormal">
        <source></source>
        <translation>كل شيء يعمل</translation>
    </message>
    <message id="ID_CheckResultPage_Headphone">
        <source></source>
        <translation>السماعة</translation>
    </message>
    <message id="ID_CheckResultPage_Normal">
        <source></source>
        <translation>سليم</translation>
    </message>
    <message id="ID_CheckResultPage_OK">
        <source></source>
        <translation>يمكنك دخول الدرس.</translation>
    </message>
    <message id="ID_CheckResultPage_Redetect">
        <source></source>
        <translation>إعادة</translation>
    </message>
    <message id="ID_CheckResultPage_System">
        <source></source>
        <translation>النظام</translation>
    </message>
    <message id="ID_ContentPage_NotFinishedIfLeave">
        <source></source>
        <translation>لم يكتمل فحص النظام بعد. هل تريد الخروج؟</translation>
    </message>
    <message id="ID_Engine_BuiltInResponder">
        <source></source>
        <translation>لم يُقَس: لا يوجد خادم</translation>
    </message>
    <message id="ID_Engine_Camera_Absent">
        <source></source>
        <translation>لم يتم العثور على كاميرا.
صِل كاميرا بهذا الكمبيوتر.</translation>
    </message>
    <message id="ID_Engine_Camera_Black">
        <source></source>
        <translation>الصورة سوداء.
افتح غطاء العدسة أو أشعل الضوء.</translation>
    </message>
    <message id="ID_Engine_Camera_Busy">
        <source></source>
        <translation>برنامج آخر يستخدم الكاميرا.
أغلق ذلك البرنامج.</translation>
    </message>
    <message id="ID_Engine_Camera_BusyBy">
        <source></source>
        <translation>يستخدم %1 الكاميرا.
أغلق هذا البرنامج.</translation>
    </message>
    <message id="ID_Engine_Camera_Denied">
        <source></source>
        <translation>النظام يرفض الوصول إلى الكاميرا.
اسمح به في إعدادات الخصوصية للنظام.</translation>
    </message>
    <message id="ID_Engine_Camera_Failed">
        <source></source>
        <translation>الكاميرا لا تعمل.
افصلها ثم صِلها من جديد، أو اختر كاميرا أخرى.</translation>
    </message>
    <message id="ID_Engine_Camera_Hung">
        <source></source>
        <translation>الكاميرا لا تستجيب.
افصلها ثم صِلها من جديد، أو أعد تشغيل الكمبيوتر.</translation>
    </message>
    <message id="ID_Engine_Camera_NotBuilt">
        <source></source>
        <translation>لا يستطيع هذا البرنامج استخدام الكاميرات على هذا النظام.
جرّب الكاميرا في برنامج آخر.</translation>
    </message>
    <message id="ID_Engine_Camera_ServerLost">
        <source></source>
        <translation>خدمة الكاميرا في هذا الكمبيوتر لا تعمل.
انتظر قليلًا أو أعد تشغيل الكمبيوتر.</translation>
    </message>
    <message id="ID_Engine_Camera_Stalled">
        <source></source>
        <translation>الكاميرا لا ترسل صورًا.
افصلها ثم صِلها من جديد، أو اختر كاميرا أخرى.</translation>
    </message>
    <message id="ID_Engine_Camera_Starting">
        <source></source>
        <translation>الكاميرا قيد التشغيل…</translation>
    </message>
    <message id="ID_Engine_Camera_Unplugged">
        <source></source>
        <translation>تم فصل الكاميرا.
صِلها من جديد أو اختر كاميرا أخرى.</translation>
    </message>
    <message id="ID_Engine_Camera_Unreadable">
        <source></source>
        <translation>لا يمكن عرض صور هذه الكاميرا هنا.
اختر كاميرا أخرى، أو تنسيقًا آخر في إعداداتها.</translation>
    </message>
    <message id="ID_Engine_File_BadEnd">
        <source></source>
        <translation>لا يجوز في Windows أن ينتهي الاسم بنقطة أو مسافة</translation>
    </message>
    <message id="ID_Engine_File_BadLetter">
        <source></source>
        <translation>لا يجوز في Windows أن يحتوي الاسم على &lt; &gt; : " | ? * أو على محارف تحكم</translation>
    </message>
    <message id="ID_Engine_File_DeadLink">
        <source></source>
        <translation>إنه رابط لا يؤدي إلى أي مكان</translation>
    </message>
    <message id="ID_Engine_File_DeviceName">
        <source></source>
        <translation>%1 هو اسم جهاز في Windows</translation>
    </message>
    <message id="ID_Engine_File_DiskSilent">
        <source></source>
        <translation>القرص لا يستجيب</translation>
    </message>
    <message id="ID_Engine_File_ForeignLink">
        <source></source>
        <translation>إنه رابط يملكه مستخدم آخر</translation>
    </message>
    <message id="ID_Engine_File_LockHeld">
        <source></source>
        <translation>برنامج آخر يحتفظ بملف القفل %1</translation>
    </message>
    <message id="ID_Engine_File_LockNotMade">
        <source></source>
        <translation>تعذّر إنشاء ملف القفل</translation>
    </message>
    <message id="ID_Engine_File_LockNotRegular">
        <source></source>
        <translation>ملف القفل %1 ليس ملفًا عاديًا</translation>
    </message>
    <message id="ID_Engine_File_NoFolder">
        <source></source>
        <translation>تعذّر إنشاء المجلد</translation>
    </message>
    <message id="ID_Engine_File_NotMade">
        <source></source>
        <translation>تعذّر إنشاء المحتوى الجديد؛ هل القرص ممتلئ؟</translation>
    </message>
    <message id="ID_Engine_File_NotRegular">
        <source></source>
        <translation>إنه ليس ملفًا عاديًا</translation>
    </message>
    <message id="ID_Engine_File_TooLarge">
        <source></source>
        <translation>حجمه أكبر من %1 ميبيبايت</translation>
    </message>
    <message id="ID_Engine_File_TooManyChanges">
        <source></source>
        <translation>تغييرات كثيرة جدًا تنتظر القرص</translation>
    </message>
    <message id="ID_Engine_Json_Document">
        <source></source>
        <translation>يجب أن يكون المستند كائنًا</translation>
    </message>
    <message id="ID_Engine_Json_Empty">
        <source></source>
        <translation>يجب ألا يكون فارغًا</translation>
    </message>
    <message id="ID_Engine_Json_Flag">
        <source></source>
        <translation>يجب أن تكون القيمة true أو false</translation>
    </message>
    <message id="ID_Engine_Json_Invalid">
        <source></source>
        <translation>ليس JSON صالحًا: %1</translation>
    </message>
    <message id="ID_Engine_Json_List">
        <source></source>
        <translation>يجب أن تكون القيمة قائمة</translation>
    </message>
    <message id="ID_Engine_Json_Missing">
        <source></source>
        <translation>الحقل مفقود</translation>
    </message>
    <message id="ID_Engine_Json_Number">
        <source></source>
        <translation>يجب أن تكون القيمة رقمًا</translation>
    </message>
    <message id="ID_Engine_Json_Object">
        <source></source>
        <translation>يجب أن تكون القيمة كائنًا</translation>
    </message>
    <message id="ID_Engine_Json_ShortList">
        <source></source>
        <translation>يجب أن تكون القيمة قائمة من %1 عناصر على الأكثر</translation>
    </message>
    <message id="ID_Engine_Json_ShortText">
        <source></source>
        <translation>يجب أن تكون القيمة نصًا من %1 محرف على الأكثر</translation>
    </message>
    <message id="ID_Engine_Json_Text">
        <source></source>
        <translation>يجب أن تكون القيمة نصًا</translation>
    </message>
    <message id="ID_Engine_Json_Twice">
        <source></source>
        <translation>يتكرر مرتين</translation>
    </message>
    <message id="ID_Engine_Json_Unknown">
        <source></source>
        <translation>ليس حقلًا معروفًا هنا</translation>
    </message>
    <message id="ID_Engine_Json_WholeNumber">
        <source></source>
        <translation>يجب أن تكون القيمة عددًا صحيحًا من %1 إلى %2</translation>
    </message>
    <message id="ID_Engine_Json_Word">
        <source></source>
        <translation>يجب أن تكون القيمة إحدى هذه الكلمات: %1</translation>
    </message>
    <message id="ID_Engine_Json_WordList">
        <source></source>
        <translation>يجب أن تكون القيمة قائمة من هذه الكلمات: %1</translation>
    </message>
    <message id="ID_Engine_NoCamera">
        <source></source>
        <translation>لا توجد كاميرا</translation>
    </message>
    <message id="ID_Engine_NoMicrophone">
        <source></source>
        <translation>لا يوجد ميكروفون</translation>
    </message>
    <message id="ID_Engine_NoSpeaker">
        <source></source>
        <translation>لم يتم العثور على سماعة</translation>
    </message>
    <message id="ID_Engine_NoSpeakerSelected">
        <source></source>
        <translation>لم يتم اختيار سماعة</translation>
    </message>
    <message id="ID_Engine_NotConnected">
        <source></source>
        <translation>غير متصل</translation>
    </message>
    <message id="ID_Engine_Scenario_Base">
        <source></source>
        <translation>يجب أن يكون اسم سيناريو مرفق</translation>
    </message>
    <message id="ID_Engine_Scenario_Levels">
        <source></source>
        <translation>يجب أن تكون القيمة [ميلي ثانية، مستوى]: متزايدة من 0، والمستوى من 0 إلى 1</translation>
    </message>
    <message id="ID_Engine_Scenario_NoDevice">
        <source></source>
        <translation>لا يسمّي أي %1 في هذا السيناريو</translation>
    </message>
    <message id="ID_Engine_Scenario_NoVolume">
        <source></source>
        <translation>ليس للكاميرا مستوى صوت</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRead">
        <source></source>
        <translation>تعذّرت القراءة: %1</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRegular">
        <source></source>
        <translation>ليس ملفًا عاديًا؛ حدّد ملف سيناريو</translation>
    </message>
    <message id="ID_Engine_Scenario_SameId">
        <source></source>
        <translation>يجب أن يكون فريدًا في قائمته</translation>
    </message>
    <message id="ID_Engine_Scenario_TooLarge">
        <source></source>
        <translation>أكبر من 1 ميبيبايت؛ حدّد ملف سيناريو</translation>
    </message>
    <message id="ID_Engine_Scenario_TooManyDevices">
        <source></source>
        <translation>أكثر من %1 جهاز مختلف من هذا النوع؛ صِل جهازًا كان موجودًا من قبل</translation>
    </message>
    <message id="ID_Engine_Scenario_Unknown">
        <source></source>
        <translation>لا يوجد ملف ولا سيناريو مرفق بهذا الاسم (المتوفر: %1)</translation>
    </message>
    <message id="ID_Engine_SoundNotBuilt">
        <source></source>
        <translation>لا صوت: هذا النظام غير مدعوم</translation>
    </message>
    <message id="ID_Engine_SoundServerLost">
        <source></source>
        <translation>خدمة الصوت لا تعمل</translation>
    </message>
    <message id="ID_Engine_SoundServerSilent">
        <source></source>
        <translation>خدمة الصوت لا تستجيب</translation>
    </message>
    <message id="ID_Engine_TelephoneQuality">
        <source></source>
        <translation>%1 (جودة الهاتف)</translation>
    </message>
    <message id="ID_HeadsetPage_2">
        <source></source>
        <translation>2. ارفع مستوى الصوت وتأكد من أنه غير مكتوم.</translation>
    </message>
    <message id="ID_HeadsetPage_3">
        <source></source>
        <translation>3. أدخل قابس السماعة بالكامل أو أعد توصيل البلوتوث.</translation>
    </message>
    <message id="ID_HeadsetPage_4">
        <source></source>
        <translation>4. اختر جهاز الإخراج نفسه في إعدادات الصوت للنظام.</translation>
    </message>
    <message id="ID_HeadsetPage_Bubble">
        <source></source>
        <translation>فقاعات</translation>
    </message>
    <message id="ID_HeadsetPage_CanHear">
        <source></source>
        <translation>نعم، أسمع</translation>
    </message>
    <message id="ID_HeadsetPage_CanNotHear">
        <source></source>
        <translation>لا، لا أسمع</translation>
    </message>
    <message id="ID_HeadsetPage_ChoseWrong">
        <source></source>
        <translation>لم يتم اختيار الصوت الصحيح</translation>
    </message>
    <message id="ID_HeadsetPage_ClickHere">
        <source></source>
        <translation>لا تسمع الصوت؟ انقر هنا</translation>
    </message>
    <message id="ID_HeadsetPage_Doorbell">
        <source></source>
        <translation>جرس الباب</translation>
    </message>
    <message id="ID_HeadsetPage_Piano">
        <source></source>
        <translation>بيانو</translation>
    </message>
    <message id="ID_HeadsetPage_Play">
        <source></source>
        <translation>تشغيل</translation>
    </message>
    <message id="ID_HeadsetPage_PlayAgain">
        <source></source>
        <translation>إعادة</translation>
    </message>
    <message id="ID_HeadsetPage_Playing">
        <source></source>
        <translation>استمع…</translation>
    </message>
    <message id="ID_HeadsetPage_PleaseSelectTheAnswer">
        <source></source>
        <translation>أي صوت تسمع؟</translation>
    </message>
    <message id="ID_HeadsetPage_Saxophone">
        <source></source>
        <translation>ساكسفون</translation>
    </message>
    <message id="ID_HeadsetPage_Seagull">
        <source></source>
        <translation>نورس</translation>
    </message>
    <message id="ID_HeadsetPage_Shutter">
        <source></source>
        <translation>كاميرا</translation>
    </message>
    <message id="ID_HeadsetPage_Speaker">
        <source></source>
        <translation>السماعة:</translation>
    </message>
    <message id="ID_HeadsetPage_Thunder">
        <source></source>
        <translation>رعد</translation>
    </message>
    <message id="ID_HeadsetPage_Tip">
        <source></source>
        <translation>اضغط زر التشغيل واستمع، ثم اختر الصوت الذي تسمعه.</translation>
    </message>
    <message id="ID_HeadsetPage_Typing">
        <source></source>
        <translation>لوحة مفاتيح</translation>
    </message>
    <message id="ID_HeadsetPage_choseNo">
        <source></source>
        <translation>أنت لا تسمع الصوت</translation>
    </message>
    <message id="ID_HeadsetPage_play">
        <source></source>
        <translation>تشغيل</translation>
    </message>
    <message id="ID_HeadsetPage_sound0">
        <source></source>
        <translation>صوت 1</translation>
    </message>
    <message id="ID_HeadsetPage_sound1">
        <source></source>
        <translation>صوت 2</translation>
    </message>
    <message id="ID_HeadsetPage_sound2">
        <source></source>
        <translation>صوت 3</translation>
    </message>
    <message id="ID_HeadsetPage_sound3">
        <source></source>
        <translation>صوت 4</translation>
    </message>
    <message id="ID_Host_Changes">
        <source></source>
        <translation>التغييرات</translation>
    </message>
    <message id="ID_Host_Changes_None">
        <source></source>
        <translation>لم يتغير شيء منذ ذلك الحين.</translation>
    </message>
    <message id="ID_Host_Check_Loop">
        <source></source>
        <translation>الحلقة الصوتية</translation>
    </message>
    <message id="ID_Host_Config_BadLine">
        <source></source>
        <translation>%1: يجب أن يكون كل سطر KEY=VALUE، مثل server=HOST، أو تعليقًا بعد فاصلة منقوطة؛ صحّحه هناك</translation>
    </message>
    <message id="ID_Host_Config_BadValue">
        <source></source>
        <translation>%1: %2=%3: المقبول هو %4؛ صحّحه هناك</translation>
    </message>
    <message id="ID_Host_Config_BadVariable">
        <source></source>
        <translation>%1=%2: المقبول هو %3</translation>
    </message>
    <message id="ID_Host_Config_UnknownKey">
        <source></source>
        <translation>%1: المفتاح %2 غير معروف؛ المفاتيح هي server وreport-url وreport-token-file</translation>
    </message>
    <message id="ID_Host_Config_Unreadable">
        <source></source>
        <translation>%1: تتعذر قراءته كملف إعدادات؛ ضع هناك ملفًا نصيًا فيه أسطر مثل server=HOST أو احذفه</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerLost">
        <source></source>
        <translation>خدمة الكاميرا لا تعمل</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerSilent">
        <source></source>
        <translation>خدمة الكاميرا لا تستجيب</translation>
    </message>
    <message id="ID_Host_Devices_Cameras">
        <source></source>
        <translation>الكاميرات</translation>
    </message>
    <message id="ID_Host_Devices_Microphones">
        <source></source>
        <translation>الميكروفونات</translation>
    </message>
    <message id="ID_Host_Devices_None">
        <source></source>
        <translation>لم يتم العثور على أي جهاز</translation>
    </message>
    <message id="ID_Host_Devices_NotBuilt">
        <source></source>
        <translation>بُني هذا البرنامج من دون الأجهزة الحقيقية (ENVCHECK_DEVICES): استخدم --platform scripted</translation>
    </message>
    <message id="ID_Host_Devices_Speakers">
        <source></source>
        <translation>السماعات</translation>
    </message>
    <message id="ID_Host_Display_Gone">
        <source></source>
        <translation>انقطعت الشاشة وانتهى الفحص معها: توقف خادم X أو مركّب Wayland؛ ابدأ الفحص من جديد</translation>
    </message>
    <message id="ID_Host_Display_None">
        <source></source>
        <translation>لا توجد شاشة لفتح الفحص عليها: شغّله من جلسة سطح مكتب أو باستخدام xvfb-run</translation>
    </message>
    <message id="ID_Host_Display_NotOpened">
        <source></source>
        <translation>تعذّر فتح الشاشة %1: شغّل الفحص من جلسة سطح مكتب أو باستخدام xvfb-run</translation>
    </message>
    <message id="ID_Host_Exit_AllPassed">
        <source></source>
        <translation>كل شيء سليم</translation>
    </message>
    <message id="ID_Host_Exit_BadInput">
        <source></source>
        <translation>لا يمكن استخدام ملف مذكور</translation>
    </message>
    <message id="ID_Host_Exit_CannotWrite">
        <source></source>
        <translation>تعذّرت الكتابة في ملف أو مجلد</translation>
    </message>
    <message id="ID_Host_Exit_LeftEarly">
        <source></source>
        <translation>غادر المستخدم قبل النهاية</translation>
    </message>
    <message id="ID_Host_Exit_PutOut">
        <source></source>
        <translation>أنهى الصف الجلسة</translation>
    </message>
    <message id="ID_Host_Exit_SomeFailed">
        <source></source>
        <translation>أحد الفحوص غير سليم</translation>
    </message>
    <message id="ID_Host_Exit_TourProblems">
        <source></source>
        <translation>وجدت الجولة خطأ</translation>
    </message>
    <message id="ID_Host_Exit_Unavailable">
        <source></source>
        <translation>لا توجد شاشة أو منفذ أو خادم</translation>
    </message>
    <message id="ID_Host_Exit_WrongUsage">
        <source></source>
        <translation>استخدام غير صحيح: تذكر الرسالة الخيار</translation>
    </message>
    <message id="ID_Host_Figure_Answered">
        <source></source>
        <translation>حزم الاختبار المُجاب عنها</translation>
    </message>
    <message id="ID_Host_Figure_Bandwidth">
        <source></source>
        <translation>أعلى تردد ملتقط</translation>
    </message>
    <message id="ID_Host_Figure_Black">
        <source></source>
        <translation>الصور السوداء</translation>
    </message>
    <message id="ID_Host_Figure_Brightness">
        <source></source>
        <translation>السطوع</translation>
    </message>
    <message id="ID_Host_Figure_Clipped">
        <source></source>
        <translation>الصوت المقصوص</translation>
    </message>
    <message id="ID_Host_Figure_DefaultAfter">
        <source></source>
        <translation>الجهاز الافتراضي بعد الفحص</translation>
    </message>
    <message id="ID_Host_Figure_DefaultBefore">
        <source></source>
        <translation>الجهاز الافتراضي قبل الفحص</translation>
    </message>
    <message id="ID_Host_Figure_Delay">
        <source></source>
        <translation>زمن الذهاب والإياب (الوسيط)</translation>
    </message>
    <message id="ID_Host_Figure_Delay5">
        <source></source>
        <translation>زمن الذهاب والإياب (المئين 5)</translation>
    </message>
    <message id="ID_Host_Figure_Delay95">
        <source></source>
        <translation>زمن الذهاب والإياب (المئين 95)</translation>
    </message>
    <message id="ID_Host_Figure_FirstPicture">
        <source></source>
        <translation>الزمن حتى أول صورة</translation>
    </message>
    <message id="ID_Host_Figure_Frozen">
        <source></source>
        <translation>الصور المتجمدة</translation>
    </message>
    <message id="ID_Host_Figure_Height">
        <source></source>
        <translation>ارتفاع الصورة</translation>
    </message>
    <message id="ID_Host_Figure_HumFrequency">
        <source></source>
        <translation>تردد طنين الكهرباء</translation>
    </message>
    <message id="ID_Host_Figure_HumShare">
        <source></source>
        <translation>طنين الكهرباء في الضوضاء</translation>
    </message>
    <message id="ID_Host_Figure_Jitter">
        <source></source>
        <translation>تذبذب التأخر</translation>
    </message>
    <message id="ID_Host_Figure_Level">
        <source></source>
        <translation>المستوى</translation>
    </message>
    <message id="ID_Host_Figure_LoopDelay">
        <source></source>
        <translation>التأخير من السماعة إلى الميكروفون</translation>
    </message>
    <message id="ID_Host_Figure_LoopLevel">
        <source></source>
        <translation>المستوى عند الميكروفون</translation>
    </message>
    <message id="ID_Host_Figure_Loss">
        <source></source>
        <translation>فقد الحزم</translation>
    </message>
    <message id="ID_Host_Figure_Modes">
        <source></source>
        <translation>أوضاع الكاميرا</translation>
    </message>
    <message id="ID_Host_Figure_MovedByUser">
        <source></source>
        <translation>غيّر المستخدم مستوى الصوت</translation>
    </message>
    <message id="ID_Host_Figure_MutedAfter">
        <source></source>
        <translation>مكتوم بعد الفحص</translation>
    </message>
    <message id="ID_Host_Figure_MutedBefore">
        <source></source>
        <translation>مكتوم قبل الفحص</translation>
    </message>
    <message id="ID_Host_Figure_NoiseFloor">
        <source></source>
        <translation>مستوى الضوضاء</translation>
    </message>
    <message id="ID_Host_Figure_OneWayDelay">
        <source></source>
        <translation>التأخر في اتجاه واحد (نصف الذهاب والإياب)</translation>
    </message>
    <message id="ID_Host_Figure_Peak">
        <source></source>
        <translation>أعلى صوت</translation>
    </message>
    <message id="ID_Host_Figure_Pictures">
        <source></source>
        <translation>عدد الصور</translation>
    </message>
    <message id="ID_Host_Figure_Program">
        <source></source>
        <translation>البرنامج المستخدم لها</translation>
    </message>
    <message id="ID_Host_Figure_Rate">
        <source></source>
        <translation>معدل الصور</translation>
    </message>
    <message id="ID_Host_Figure_Seconds">
        <source></source>
        <translation>مدة القياس</translation>
    </message>
    <message id="ID_Host_Figure_Sent">
        <source></source>
        <translation>حزم الاختبار المُرسلة</translation>
    </message>
    <message id="ID_Host_Figure_SoundHeard">
        <source></source>
        <translation>التُقط صوت</translation>
    </message>
    <message id="ID_Host_Figure_SoundPlayed">
        <source></source>
        <translation>الصوت المُشغَّل</translation>
    </message>
    <message id="ID_Host_Figure_VolumeAfter">
        <source></source>
        <translation>مستوى الصوت بعد الفحص</translation>
    </message>
    <message id="ID_Host_Figure_VolumeBefore">
        <source></source>
        <translation>مستوى الصوت قبل الفحص</translation>
    </message>
    <message id="ID_Host_Figure_Width">
        <source></source>
        <translation>عرض الصورة</translation>
    </message>
    <message id="ID_Host_File_IsFolder">
        <source></source>
        <translation>هذا مجلد؛ اذكر ملفًا داخله</translation>
    </message>
    <message id="ID_Host_File_NameOther">
        <source></source>
        <translation>%1؛ اذكر ملفًا آخر</translation>
    </message>
    <message id="ID_Host_File_NoFolder">
        <source></source>
        <translation>المجلد %1 غير موجود؛ أنشئه أو اذكر ملفًا آخر</translation>
    </message>
    <message id="ID_Host_File_NoObject">
        <source></source>
        <translation>المستند ليس كائنًا</translation>
    </message>
    <message id="ID_Host_File_NoReport">
        <source></source>
        <translation>%1 ليس تقريرًا بصيغة JSON (%2)؛ اذكر تقريرًا كتبه أحد الفحوص</translation>
    </message>
    <message id="ID_Host_File_NoRight">
        <source></source>
        <translation>لا تملك صلاحية الكتابة هناك؛ اذكر ملفًا آخر</translation>
    </message>
    <message id="ID_Host_File_NotOrdinary">
        <source></source>
        <translation>هذا ليس ملفًا عاديًا؛ اذكر ملفًا آخر</translation>
    </message>
    <message id="ID_Host_File_NotRead">
        <source></source>
        <translation>تعذّرت قراءة %1: %2؛ اذكر تقريرًا كتبه أحد الفحوص</translation>
    </message>
    <message id="ID_Host_File_NotWritten">
        <source></source>
        <translation>تعذّرت كتابة %1: %2</translation>
    </message>
    <message id="ID_Host_File_TooLarge">
        <source></source>
        <translation>الملف كبير جدًا</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodPicture">
        <source></source>
        <translation>الإجابة «لا»، لكن صورًا متحركة كانت تصل.</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodSound">
        <source></source>
        <translation>الإجابة «لا»، لكن الميكروفون التقط صوتًا.</translation>
    </message>
    <message id="ID_Host_Flag_NoToRightSound">
        <source></source>
        <translation>الإجابة «لا»، لكن اختير الصوت الصحيح.</translation>
    </message>
    <message id="ID_Host_Flag_YesToBlackPicture">
        <source></source>
        <translation>الإجابة «نعم» على صورة سوداء.</translation>
    </message>
    <message id="ID_Host_Flag_YesToFrozenPicture">
        <source></source>
        <translation>الإجابة «نعم» على صورة متجمدة.</translation>
    </message>
    <message id="ID_Host_Flag_YesToMutedSpeaker">
        <source></source>
        <translation>الإجابة «نعم» والسماعة مكتومة.</translation>
    </message>
    <message id="ID_Host_Flag_YesToSilence">
        <source></source>
        <translation>الإجابة «نعم»، لكن الميكروفون لم يلتقط شيئًا.</translation>
    </message>
    <message id="ID_Host_Flag_YesToWrongSound">
        <source></source>
        <translation>الإجابة «نعم»، لكن لم يُختر الصوت الصحيح.</translation>
    </message>
    <message id="ID_Host_Flag_YesWithoutPictures">
        <source></source>
        <translation>الإجابة «نعم»، لكن لم تصل أي صور.</translation>
    </message>
    <message id="ID_Host_Grade">
        <source></source>
        <translation>جودة الشبكة</translation>
    </message>
    <message id="ID_Host_Grade_Fair">
        <source></source>
        <translation>متوسطة</translation>
    </message>
    <message id="ID_Host_Grade_FairUpTo">
        <source></source>
        <translation>متوسطة حتى %1</translation>
    </message>
    <message id="ID_Host_Grade_Good">
        <source></source>
        <translation>جيدة</translation>
    </message>
    <message id="ID_Host_Grade_GoodUpTo">
        <source></source>
        <translation>جيدة حتى %1</translation>
    </message>
    <message id="ID_Host_Grade_Poor">
        <source></source>
        <translation>ضعيفة</translation>
    </message>
    <message id="ID_Host_Help_Arguments">
        <source></source>
        <translation>المعاملات:</translation>
    </message>
    <message id="ID_Host_Help_Check">
        <source></source>
        <translation>يفحص الشبكة والكاميرا والسماعة والميكروفون قبل الدرس عبر الإنترنت.</translation>
    </message>
    <message id="ID_Host_Help_Commands">
        <source></source>
        <translation>الأوامر:</translation>
    </message>
    <message id="ID_Host_Help_Devices">
        <source></source>
        <translation>يسرد الكاميرات والميكروفونات ومكبرات الصوت مع حالاتها. رمز الخروج 0: القوائم كاملة حتى إن لم يُعثر على شيء؛ 69: خدمة الكاميرا أو الصوت لا تعمل أو لا تستجيب.</translation>
    </message>
    <message id="ID_Host_Help_ExitCodes">
        <source></source>
        <translation>رموز الخروج:</translation>
    </message>
    <message id="ID_Host_Help_File">
        <source></source>
        <translation>تقرير كتبه أحد الفحوص؛ والعلامة - تعني الإدخال القياسي. ودونه: تقرير آخر فحص.</translation>
    </message>
    <message id="ID_Host_Help_History">
        <source></source>
        <translation>يعرض عمليات الفحص السابقة ونتائجها وتقاريرها.</translation>
    </message>
    <message id="ID_Host_Help_Network">
        <source></source>
        <translation>يقيس تأخر الشبكة وفقد الحزم ويعرض القيم أولًا بأول.</translation>
    </message>
    <message id="ID_Host_Help_NoCommand">
        <source></source>
        <translation>من دون أمر يُفتح الفحص. لكل أمر مساعدة خاصة به (--help).</translation>
    </message>
    <message id="ID_Host_Help_Options">
        <source></source>
        <translation>الخيارات:</translation>
    </message>
    <message id="ID_Host_Help_Report">
        <source></source>
        <translation>يعرض تقارير الفحوص السابقة نصًا أو HTML أو JSON، أو عدة تقارير في جدول واحد.</translation>
    </message>
    <message id="ID_Host_Help_Serve">
        <source></source>
        <translation>يجيب عن قياسات الأجهزة الأخرى كخادم STUN صغير حتى يُوقَف.</translation>
    </message>
    <message id="ID_Host_Help_Usage">
        <source></source>
        <translation>الاستخدام: %1</translation>
    </message>
    <message id="ID_Host_Help_UsageOptions">
        <source></source>
        <translation>[الخيارات]</translation>
    </message>
    <message id="ID_Host_History_NoReport">
        <source></source>
        <translation>لا يوجد بعد تقرير فحص محفوظ؛ شغّل الفحص أو سمِّ ملف تقرير</translation>
    </message>
    <message id="ID_Host_History_None">
        <source></source>
        <translation>لا توجد عمليات فحص سابقة.</translation>
    </message>
    <message id="ID_Host_Language_Unknown">
        <source></source>
        <translation>--language %1: لا توجد نصوص بهذه اللغة؛ اذكر إحدى هذه اللغات: %2</translation>
    </message>
    <message id="ID_Host_LastGoodRun">
        <source></source>
        <translation>آخر فحص سليم</translation>
    </message>
    <message id="ID_Host_LastGoodRun_None">
        <source></source>
        <translation>لا يوجد فحص سابق كان فيه كل شيء سليمًا.</translation>
    </message>
    <message id="ID_Host_MeasuringFailed">
        <source></source>
        <translation>فشل القياس: %1</translation>
    </message>
    <message id="ID_Host_Network_Ends">
        <source></source>
        <translation>الخادم %1، هذا الكمبيوتر %2</translation>
    </message>
    <message id="ID_Host_Network_Figures">
        <source></source>
        <translation>التأخر %1 مث، التذبذب %2 مث، فقد الحزم %3%، المُرسل %4، المُجاب %5: %6</translation>
    </message>
    <message id="ID_Host_Network_NameServer">
        <source></source>
        <translation>لم يُقَس: لا يوجد خادم؛ حدّد واحدًا بالخيار --server أو بالمتغير %1 أو في %2</translation>
    </message>
    <message id="ID_Host_Network_NoAnswer">
        <source></source>
        <translation>لا استجابة، فقد الحزم %1%، المُرسل %2، المُجاب %3</translation>
    </message>
    <message id="ID_Host_Network_NoRoute">
        <source></source>
        <translation>لا طريق إلى الخادم، الفقد %1 %، المرسل %2، المجاب %3</translation>
    </message>
    <message id="ID_Host_Network_NoSuchServer">
        <source></source>
        <translation>لا يوجد خادم كهذا، فقد الحزم %1%، المُرسل %2، المُجاب %3</translation>
    </message>
    <message id="ID_Host_Network_Refused">
        <source></source>
        <translation>الخادم يرفض، الفقد %1 %، المرسل %2، المجاب %3</translation>
    </message>
    <message id="ID_Host_No">
        <source></source>
        <translation>لا</translation>
    </message>
    <message id="ID_Host_NoAnswer">
        <source></source>
        <translation>بلا إجابة</translation>
    </message>
    <message id="ID_Host_NotMeasured">
        <source></source>
        <translation>لم يُقس: %1</translation>
    </message>
    <message id="ID_Host_Option_Account">
        <source></source>
        <translation>الحساب المعروض؛ وهو افتراضيًا مستخدم النظام.</translation>
    </message>
    <message id="ID_Host_Option_Cdn">
        <source></source>
        <translation>شبكة CDN المعروضة.</translation>
    </message>
    <message id="ID_Host_Option_Count">
        <source></source>
        <translation>الانتهاء بعد N قيم؛ ومن دونه يستمر الأمر حتى يُوقَف.</translation>
    </message>
    <message id="ID_Host_Option_Diagnose">
        <source></source>
        <translation>يقيس كما يفعل ‎--unattended‎ ويجمع التقرير والأجهزة والإصدارات والسجل في ‎FILE.zip‎ لمن يبحث عن السبب. من دون ‎--redact‎ تُحذف الأسماء والعناوين.</translation>
    </message>
    <message id="ID_Host_Option_FilesFrom">
        <source></source>
        <translation>قراءة أسماء التقارير أيضًا من FILE، اسم في كل سطر؛ والعلامة - تعني الإدخال القياسي.</translation>
    </message>
    <message id="ID_Host_Option_Format">
        <source></source>
        <translation>text (الافتراضي) أو html أو json؛ ولتقارير كثيرة room (جدول) أو map (صفحة فيها مربع لكل تقرير) أو csv أو jsonl.</translation>
    </message>
    <message id="ID_Host_Option_Help">
        <source></source>
        <translation>عرض هذه المساعدة.</translation>
    </message>
    <message id="ID_Host_Option_Json">
        <source></source>
        <translation>عرض JSON بدلًا من جدول.</translation>
    </message>
    <message id="ID_Host_Option_Language">
        <source></source>
        <translation>لغة النصوص، مثل en أو zh_CN؛ وهي افتراضيًا لغة النظام.</translation>
    </message>
    <message id="ID_Host_Option_Loop">
        <source></source>
        <translation>مع ‎--unattended‎: يشغّل أيضًا لمدة ثانية نغمة خافتة صاعدة على السماعة المحددة ويبحث عنها في الميكروفون المحدد. هذا يُحدث صوتًا.</translation>
    </message>
    <message id="ID_Host_Option_Nickname">
        <source></source>
        <translation>الاسم المستعار المعروض؛ وهو افتراضيًا مستخدم النظام.</translation>
    </message>
    <message id="ID_Host_Option_Platform">
        <source></source>
        <translation>الأجهزة المراد فحصها: devices (أجهزة هذا الكمبيوتر، الافتراضي) أو scripted (محاكاة).</translation>
    </message>
    <message id="ID_Host_Option_Port">
        <source></source>
        <translation>منفذ UDP للإجابة؛ افتراضيًا 3478، و0 يأخذ منفذًا شاغرًا.</translation>
    </message>
    <message id="ID_Host_Option_Quiet">
        <source></source>
        <translation>لا تفتح نافذة النتيجة بعد فحص لم ينجح.</translation>
    </message>
    <message id="ID_Host_Option_Redact">
        <source></source>
        <translation>ما يُحذف: none (لا شيء، الافتراضي) أو personal (العناوين والأسماء والحسابات) أو hash (رموز قصيرة بدلًا منها).</translation>
    </message>
    <message id="ID_Host_Option_Report">
        <source></source>
        <translation>كتابة التقرير في FILE بدلًا من المكان الافتراضي؛ وامتداده (.json أو .html أو .txt) يحدد صيغته، والعلامة - تعني الإخراج القياسي بصيغة JSON.</translation>
    </message>
    <message id="ID_Host_Option_ReportTokenFile">
        <source></source>
        <translation>الملف الذي فيه الرمز المميّز الذي يطلبه خادم التقارير. لا يقرؤه إلا أنت أو مجموعة.</translation>
    </message>
    <message id="ID_Host_Option_ReportUrl">
        <source></source>
        <translation>العنوان الذي يُرسل إليه التقرير ورموزه. ومن دون ‎--redact‎ لا يتضمن أسماء ولا عناوين.</translation>
    </message>
    <message id="ID_Host_Option_Results">
        <source></source>
        <translation>كتابة النتائج وحدها أيضًا في FILE بصيغة JSON بعد كل تغيير؛ والعلامة - تعني الإخراج القياسي، عند النهاية.</translation>
    </message>
    <message id="ID_Host_Option_Scenario">
        <source></source>
        <translation>ما تفعله الأجهزة المحاكاة: ملف أو اسم سيناريو مرفق مثل all-well. يتضمن --platform scripted.</translation>
    </message>
    <message id="ID_Host_Option_Server">
        <source></source>
        <translation>خادم STUN الذي يُقاس إليه التأخر وفقد الحزم، ويُكتب أيضًا stun:HOST:PORT. من دون منفذ تُسأل سجلات DNS للنطاق (_stun._udp)، وإلا فالمنفذ 3478. ويمكن تحديده أيضًا بالمتغير ENVCHECK_SERVER أو في ملف إعدادات. من دون خادم لا تُقاس الشبكة، بل يجيب هذا الكمبيوتر نفسه.</translation>
    </message>
    <message id="ID_Host_Option_Tour">
        <source></source>
        <translation>المرور بكل الخطوات تلقائيًا وحفظ صورة لكل منها في FOLDER.</translation>
    </message>
    <message id="ID_Host_Option_Unattended">
        <source></source>
        <translation>يقيس دون نافذة ودون شخص؛ ‎--json ملف‎ (و- للإخراج القياسي) يكتب التقرير. رموز الخروج: 0 يعمل، 1 يحتاج إلى إصلاح، 69 خدمة أو خادم غير موجود.</translation>
    </message>
    <message id="ID_Host_Option_Verbose">
        <source></source>
        <translation>كتابة السجل في الطرفية أيضًا.</translation>
    </message>
    <message id="ID_Host_Option_Version">
        <source></source>
        <translation>عرض الإصدار.</translation>
    </message>
    <message id="ID_Host_Outcome_BrokenOff">
        <source></source>
        <translation>دون شخص: انتهى قبل قياس كل شيء</translation>
    </message>
    <message id="ID_Host_Outcome_Failed">
        <source></source>
        <translation>اكتمل مع مشكلات</translation>
    </message>
    <message id="ID_Host_Outcome_Faulty">
        <source></source>
        <translation>دون شخص: هناك ما يحتاج إلى إصلاح</translation>
    </message>
    <message id="ID_Host_Outcome_LeftEarly">
        <source></source>
        <translation>غادر المستخدم قبل النهاية</translation>
    </message>
    <message id="ID_Host_Outcome_Passed">
        <source></source>
        <translation>كل شيء سليم</translation>
    </message>
    <message id="ID_Host_Outcome_PutOut">
        <source></source>
        <translation>أنهى الصف الجلسة</translation>
    </message>
    <message id="ID_Host_Outcome_Unavailable">
        <source></source>
        <translation>دون شخص: إحدى الخدمات غير موجودة، لذلك لم يُقَس كل شيء</translation>
    </message>
    <message id="ID_Host_Outcome_Works">
        <source></source>
        <translation>دون شخص: كل ما قيس يعمل</translation>
    </message>
    <message id="ID_Host_OutputNotWritten">
        <source></source>
        <translation>تعذّرت كتابة المخرجات؛ تأكد من أن القرص غير ممتلئ</translation>
    </message>
    <message id="ID_Host_Reason_Absent">
        <source></source>
        <translation>لا يوجد جهاز</translation>
    </message>
    <message id="ID_Host_Reason_Busy">
        <source></source>
        <translation>برنامج آخر يستخدم الجهاز</translation>
    </message>
    <message id="ID_Host_Reason_Denied">
        <source></source>
        <translation>النظام يرفض الوصول</translation>
    </message>
    <message id="ID_Host_Reason_Failed">
        <source></source>
        <translation>تعطل الجهاز</translation>
    </message>
    <message id="ID_Host_Reason_Hung">
        <source></source>
        <translation>الجهاز لا يستجيب</translation>
    </message>
    <message id="ID_Host_Reason_Muted">
        <source></source>
        <translation>الجهاز مكتوم</translation>
    </message>
    <message id="ID_Host_Reason_NoAnswer">
        <source></source>
        <translation>الخادم لا يستجيب</translation>
    </message>
    <message id="ID_Host_Reason_NoRoute">
        <source></source>
        <translation>لا طريق إلى الخادم</translation>
    </message>
    <message id="ID_Host_Reason_NotBuilt">
        <source></source>
        <translation>غير مدعوم على هذا النظام</translation>
    </message>
    <message id="ID_Host_Reason_NotOffered">
        <source></source>
        <translation>هذا المحرك لا يستطيع ذلك</translation>
    </message>
    <message id="ID_Host_Reason_NotRecorded">
        <source></source>
        <translation>المحرك لا يسجله</translation>
    </message>
    <message id="ID_Host_Reason_Off">
        <source></source>
        <translation>الجهاز متوقف</translation>
    </message>
    <message id="ID_Host_Reason_Refused">
        <source></source>
        <translation>الخادم رفض الطلب</translation>
    </message>
    <message id="ID_Host_Reason_Scripted">
        <source></source>
        <translation>الأجهزة المحاكاة ليس لها هذه القيمة</translation>
    </message>
    <message id="ID_Host_Reason_ServerLost">
        <source></source>
        <translation>خدمة الصوت لا تعمل</translation>
    </message>
    <message id="ID_Host_Reason_ServerSilent">
        <source></source>
        <translation>خدمة الصوت لا تستجيب</translation>
    </message>
    <message id="ID_Host_Reason_Silent">
        <source></source>
        <translation>لم يصل شيء من الجهاز</translation>
    </message>
    <message id="ID_Host_Reason_StepNotOpened">
        <source></source>
        <translation>لم تُفتح هذه الخطوة</translation>
    </message>
    <message id="ID_Host_Reason_Unreadable">
        <source></source>
        <translation>لا ترسل الكاميرا أي تنسيق يمكن عرضه</translation>
    </message>
    <message id="ID_Host_Reason_VolumeZero">
        <source></source>
        <translation>مستوى الصوت 0</translation>
    </message>
    <message id="ID_Host_Redacted_Hash">
        <source></source>
        <translation>استُبدلت العناوين والأسماء والحسابات برموز قصيرة.</translation>
    </message>
    <message id="ID_Host_Redacted_Personal">
        <source></source>
        <translation>حُذفت العناوين والأسماء والحسابات.</translation>
    </message>
    <message id="ID_Host_Remedy_Clipping">
        <source></source>
        <translation>صوت الميكروفون مرتفع جدًا ومشوَّه، فاخفض مستوى صوته.</translation>
    </message>
    <message id="ID_Host_Remedy_Hum">
        <source></source>
        <translation>في الميكروفون طنين، فجرّب مقبسًا أو كابلًا آخر وأبعده عن مزوّدات الطاقة.</translation>
    </message>
    <message id="ID_Host_Remedy_LoopNotHeard">
        <source></source>
        <translation>لم يسمع الميكروفون السماعة، فارفع مستوى الصوت لكليهما وتحقق من أنهما في سماعة الرأس نفسها أو في الغرفة نفسها.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerSilent">
        <source></source>
        <translation>لم تستجب خدمة الصورة والصوت في النظام، فسجّل الخروج ثم الدخول، أو أعد تشغيل الكمبيوتر.</translation>
    </message>
    <message id="ID_Host_ReportIsIn">
        <source></source>
        <translation>التقرير في %1</translation>
    </message>
    <message id="ID_Host_Report_Answer">
        <source></source>
        <translation>الإجابة</translation>
    </message>
    <message id="ID_Host_Report_BadTime">
        <source></source>
        <translation>يجب أن تكون القيمة وقتًا مثل 2026-03-01T08:30:00Z</translation>
    </message>
    <message id="ID_Host_Report_Causes">
        <source></source>
        <translation>الأسباب</translation>
    </message>
    <message id="ID_Host_Report_Computer">
        <source></source>
        <translation>الحاسوب</translation>
    </message>
    <message id="ID_Host_Report_Contradiction">
        <source></source>
        <translation>تناقض</translation>
    </message>
    <message id="ID_Host_Report_Count">
        <source></source>
        <translation>التقارير</translation>
    </message>
    <message id="ID_Host_Report_Device">
        <source></source>
        <translation>الجهاز</translation>
    </message>
    <message id="ID_Host_Report_Id">
        <source></source>
        <translation>رقم التقرير</translation>
    </message>
    <message id="ID_Host_Report_Later">
        <source></source>
        <translation>قيس لاحقًا</translation>
    </message>
    <message id="ID_Host_Report_Measurements">
        <source></source>
        <translation>القياسات</translation>
    </message>
    <message id="ID_Host_Report_Notice">
        <source></source>
        <translation>ملاحظة</translation>
    </message>
    <message id="ID_Host_Report_OtherFormat">
        <source></source>
        <translation>هذا ليس تقرير فحص</translation>
    </message>
    <message id="ID_Host_Report_OtherVersion">
        <source></source>
        <translation>الإصدار هو %1، وهذا البرنامج يقرأ الإصدار %2</translation>
    </message>
    <message id="ID_Host_Report_Outcome">
        <source></source>
        <translation>الحصيلة</translation>
    </message>
    <message id="ID_Host_Report_Program">
        <source></source>
        <translation>البرنامج</translation>
    </message>
    <message id="ID_Host_Report_Result">
        <source></source>
        <translation>النتيجة</translation>
    </message>
    <message id="ID_Host_Report_RightSound">
        <source></source>
        <translation>اختيار الصوت الصحيح</translation>
    </message>
    <message id="ID_Host_Report_Scripted">
        <source></source>
        <translation>كانت الأجهزة محاكاة وليست أجهزة هذا الكمبيوتر.</translation>
    </message>
    <message id="ID_Host_Report_Summary">
        <source></source>
        <translation>الملخص</translation>
    </message>
    <message id="ID_Host_Report_System">
        <source></source>
        <translation>الكمبيوتر والحساب</translation>
    </message>
    <message id="ID_Host_Report_Time">
        <source></source>
        <translation>التاريخ والوقت</translation>
    </message>
    <message id="ID_Host_Report_Title">
        <source></source>
        <translation>تقرير فحص النظام</translation>
    </message>
    <message id="ID_Host_Serve_Answering">
        <source></source>
        <translation>الإجابة على منفذ UDP %1. تقيس الأجهزة الأخرى الطريق إلى هنا باستخدام --server stun:HOST:%1</translation>
    </message>
    <message id="ID_Host_Serve_NoPort">
        <source></source>
        <translation>تعذّرت الإجابة على منفذ UDP %1: %2. اختر منفذًا آخر باستخدام --port</translation>
    </message>
    <message id="ID_Host_Serve_NotBuilt">
        <source></source>
        <translation>يحتاج serve إلى برنامج بُني مع الأجهزة الحقيقية (ENVCHECK_DEVICES)</translation>
    </message>
    <message id="ID_Host_State_Absent">
        <source></source>
        <translation>غير متصل</translation>
    </message>
    <message id="ID_Host_State_Busy">
        <source></source>
        <translation>مشغول</translation>
    </message>
    <message id="ID_Host_State_Denied">
        <source></source>
        <translation>الوصول مرفوض</translation>
    </message>
    <message id="ID_Host_State_Failed">
        <source></source>
        <translation>معطّل</translation>
    </message>
    <message id="ID_Host_State_Hung">
        <source></source>
        <translation>لا يستجيب</translation>
    </message>
    <message id="ID_Host_State_Off">
        <source></source>
        <translation>متوقف</translation>
    </message>
    <message id="ID_Host_State_Ready">
        <source></source>
        <translation>جاهز</translation>
    </message>
    <message id="ID_Host_State_Silent">
        <source></source>
        <translation>بلا إشارة</translation>
    </message>
    <message id="ID_Host_State_Working">
        <source></source>
        <translation>يعمل</translation>
    </message>
    <message id="ID_Host_Takes_Ending">
        <source></source>
        <translation>اسمًا ينتهي بأحد %1، أو - للإخراج القياسي</translation>
    </message>
    <message id="ID_Host_Takes_FileEnding">
        <source></source>
        <translation>اسم ملف ينتهي بـ %1</translation>
    </message>
    <message id="ID_Host_Takes_Number">
        <source></source>
        <translation>رقم من %1 إلى %2</translation>
    </message>
    <message id="ID_Host_Takes_OneOf">
        <source></source>
        <translation>إحدى هذه القيم: %1</translation>
    </message>
    <message id="ID_Host_Takes_Server">
        <source></source>
        <translation>HOST أو HOST:PORT، مع stun: قبله أو من دونه، مثل stun:stun.example.org:3478</translation>
    </message>
    <message id="ID_Host_Takes_WebAddress">
        <source></source>
        <translation>عنوان http أو https</translation>
    </message>
    <message id="ID_Host_Token_NoToken">
        <source></source>
        <translation>%1: هذا ليس رمزًا مميّزًا؛ المطلوب سطر واحد من الحروف اللاتينية والأرقام و- . _ ~ + /، مع = في آخره</translation>
    </message>
    <message id="ID_Host_Token_NotEncrypted">
        <source></source>
        <translation>%1: لا يُرسل الرمز المميّز إلا عبر https؛ استخدم عنوان https أو استغنِ عن الرمز</translation>
    </message>
    <message id="ID_Host_Token_NotRead">
        <source></source>
        <translation>تعذّرت قراءة %1: %2؛ اذكر ملفًا فيه الرمز المميّز لخادم التقارير</translation>
    </message>
    <message id="ID_Host_Token_Open">
        <source></source>
        <translation>في %1 رمز مميّز، ويستطيع كل مستخدم قراءته أو الكتابة فيه؛ غيّر ذلك بالأمر: chmod o= %1</translation>
    </message>
    <message id="ID_Host_Tour_Done">
        <source></source>
        <translation>عدد الصور %1 في %2؛ ويعرضها index.html كلها.</translation>
    </message>
    <message id="ID_Host_Tour_NoFolder">
        <source></source>
        <translation>--tour %1: تعذّر إنشاء هذا المجلد؛ اذكر مجلدًا آخر</translation>
    </message>
    <message id="ID_Host_Tour_NotWritten">
        <source></source>
        <translation>%1: %2؛ اذكر مجلدًا آخر</translation>
    </message>
    <message id="ID_Host_Upload_Kept">
        <source></source>
        <translation>لم يصل التقرير إلى %1: %2. إنه محفوظ، وسيرسله التشغيل التالي مرة أخرى.</translation>
    </message>
    <message id="ID_Host_Upload_NoAnswer">
        <source></source>
        <translation>لا جواب في الوقت المحدد</translation>
    </message>
    <message id="ID_Host_Upload_Refused">
        <source></source>
        <translation>لا يقبل %1 التقرير: %2. ولن يُرسل مرة أخرى.</translation>
    </message>
    <message id="ID_Host_Upload_Sending">
        <source></source>
        <translation>يجري إرسال التقرير إلى %1 …</translation>
    </message>
    <message id="ID_Host_Upload_WrongToken">
        <source></source>
        <translation>الرمز المميّز غائب أو خاطئ (HTTP %1)</translation>
    </message>
    <message id="ID_Host_Usage_EmptyName">
        <source></source>
        <translation>يحتاج --%1 إلى اسم غير فارغ</translation>
    </message>
    <message id="ID_Host_Usage_ExtraArgument">
        <source></source>
        <translation>المعامل «%1» زائد: انظر --help</translation>
    </message>
    <message id="ID_Host_Usage_LeaveOneOut">
        <source></source>
        <translation>لا يُستخدم %1 مع %2: احذف أحدهما</translation>
    </message>
    <message id="ID_Host_Usage_Needs">
        <source></source>
        <translation>يحتاج ‎--%1‎ إلى ‎--%2‎: أضفه أو احذف ‎--%1‎</translation>
    </message>
    <message id="ID_Host_Usage_OtherCommand">
        <source></source>
        <translation>لا يُستخدم --%1 مع %2: انظر --help</translation>
    </message>
    <message id="ID_Host_Usage_SamePlace">
        <source></source>
        <translation>كلٌّ من --%1 و--%2 سيكتب في المكان نفسه (%3): اختر مكانين مختلفين</translation>
    </message>
    <message id="ID_Host_Usage_SeeHelp">
        <source></source>
        <translation>%1 انظر --help.</translation>
    </message>
    <message id="ID_Host_Usage_Takes">
        <source></source>
        <translation>--%1 %2: القيمة المطلوبة %3</translation>
    </message>
    <message id="ID_Host_Usage_TheCheck">
        <source></source>
        <translation>الفحص</translation>
    </message>
    <message id="ID_Host_Usage_UnknownCommand">
        <source></source>
        <translation>أمر غير معروف «%1»: انظر --help</translation>
    </message>
    <message id="ID_Host_Verdict_Faulty">
        <source></source>
        <translation>يحتاج إلى إصلاح</translation>
    </message>
    <message id="ID_Host_Verdict_Heard">
        <source></source>
        <translation>سُمعت</translation>
    </message>
    <message id="ID_Host_Verdict_NotHeard">
        <source></source>
        <translation>لم تُسمع</translation>
    </message>
    <message id="ID_Host_Verdict_NotTried">
        <source></source>
        <translation>لم تُجرَّب</translation>
    </message>
    <message id="ID_Host_Verdict_Unmeasured">
        <source></source>
        <translation>لم يُقَس</translation>
    </message>
    <message id="ID_Host_Verdict_Works">
        <source></source>
        <translation>يعمل</translation>
    </message>
    <message id="ID_Host_Yes">
        <source></source>
        <translation>نعم</translation>
    </message>
    <message id="ID_Kestrel_SystemTesting">
        <source></source>
        <translation>فحص النظام</translation>
    </message>
    <message id="ID_MessageBox_Critical">
        <source></source>
        <translation>خطأ</translation>
    </message>
    <message id="ID_MessageBox_Information">
        <source></source>
        <translation>معلومات</translation>
    </message>
    <message id="ID_MessageBox_Question">
        <source></source>
        <translation>سؤال</translation>
    </message>
    <message id="ID_MessageBox_Warning">
        <source></source>
        <translation>تحذير</translation>
    </message>
    <message id="ID_Microphone">
        <source></source>
        <translation>المايك:</translation>
    </message>
    <message id="ID_MicrophonePage_2">
        <source></source>
        <translation>2. ألغِ كتم الميكروفون: تحقق من المفتاح أو زر الكتم.</translation>
    </message>
    <message id="ID_MicrophonePage_3">
        <source></source>
        <translation>3. ارفع مستوى الصوت وتكلّم قرب الميكروفون.</translation>
    </message>
    <message id="ID_MicrophonePage_4">
        <source></source>
        <translation>4. اسمح باستخدام الميكروفون في إعدادات الخصوصية للنظام.</translation>
    </message>
    <message id="ID_MicrophonePage_Again">
        <source></source>
        <translation>إعادة</translation>
    </message>
    <message id="ID_MicrophonePage_CanHearOrSee">
        <source></source>
        <translation>نعم، أسمع وأرى</translation>
    </message>
    <message id="ID_MicrophonePage_CanNotHearOrSee">
        <source></source>
        <translation>لا أسمع أو لا أرى</translation>
    </message>
    <message id="ID_MicrophonePage_ChoseNo">
        <source></source>
        <translation>لا تسمع صوتك أو لا ترى الشريط</translation>
    </message>
    <message id="ID_MicrophonePage_ClickHere">
        <source></source>
        <translation>لا تسمع نفسك أو لا ترى الشريط؟ انقر هنا</translation>
    </message>
    <message id="ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable">
        <source></source>
        <translation>الميكروفون متوقف. اختر ميكروفونًا هنا أو فعّله.</translation>
    </message>
    <message id="ID_MicrophonePage_MayNoisy">
        <source></source>
        <translation>فوق 100 قد يظهر تشويش في صوتك.</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneDisabled">
        <source></source>
        <translation>الميكروفون متوقف أو معطّل</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneTest">
        <source></source>
        <translation>اضغط «تسجيل» وعُدّ بصوت عالٍ من 1 إلى 10. استمع إلى صوتك ولاحظ هل يتحرك الشريط الأخضر.</translation>
    </message>
    <message id="ID_MicrophonePage_NoMicrophoneWasDetected">
        <source></source>
        <translation>لم يتم العثور على ميكروفون</translation>
    </message>
    <message id="ID_MicrophonePage_NoVoiceWasRecorded">
        <source></source>
        <translation>الميكروفون لا يلتقط أي صوت</translation>
    </message>
    <message id="ID_MicrophonePage_OfS">
        <source></source>
        <translation>%1 ث</translation>
    </message>
    <message id="ID_MicrophonePage_Recording">
        <source></source>
        <translation>تحدّث…</translation>
    </message>
    <message id="ID_Microphone_Check">
        <source></source>
        <translation>المايك</translation>
    </message>
    <message id="ID_NetworkPage_1">
        <source></source>
        <translation>1. اقترب من جهاز التوجيه اللاسلكي أو استخدم كابل الشبكة.</translation>
    </message>
    <message id="ID_NetworkPage_2">
        <source></source>
        <translation>2. أوقف التنزيلات ومقاطع الفيديو، حتى على الأجهزة الأخرى.</translation>
    </message>
    <message id="ID_NetworkPage_3">
        <source></source>
        <translation>3. عطّل VPN وخادم الوكيل، أو أعد تشغيل جهاز التوجيه.</translation>
    </message>
    <message id="ID_NetworkPage_Account">
        <source></source>
        <translation>الحساب:</translation>
    </message>
    <message id="ID_NetworkPage_AvailableCacheSpace">
        <source></source>
        <translation>المساحة المتاحة:</translation>
    </message>
    <message id="ID_NetworkPage_CPU">
        <source></source>
        <translation>المعالج:</translation>
    </message>
    <message id="ID_NetworkPage_ClickHere">
        <source></source>
        <translation>الشبكة بطيئة أو غير مستقرة؟ انقر هنا</translation>
    </message>
    <message id="ID_NetworkPage_Client">
        <source></source>
        <translation>العميل:</translation>
    </message>
    <message id="ID_NetworkPage_LostRate">
        <source></source>
        <translation>نسبة فقد الحزم:</translation>
    </message>
    <message id="ID_NetworkPage_NetworkDelay">
        <source></source>
        <translation>تأخر الشبكة:</translation>
    </message>
    <message id="ID_NetworkPage_NetworkSlowOrUnstable">
        <source></source>
        <translation>الشبكة بطيئة أو غير مستقرة</translation>
    </message>
    <message id="ID_NetworkPage_OS">
        <source></source>
        <translation>نظام التشغيل:</translation>
    </message>
    <message id="ID_NewLogin_Server">
        <source></source>
        <translation>الخادم:</translation>
    </message>
    <message id="ID_Next">
        <source></source>
        <translation>التالي</translation>
    </message>
    <message id="ID_Nickname_NetworkPage">
        <source></source>
        <translation>الاسم المستعار:</translation>
    </message>
    <message id="ID_OK">
        <source></source>
        <translation>تم</translation>
    </message>
    <message id="ID_Record">
        <source></source>
        <translation>تسجيل</translation>
    </message>
    <message id="ID_Skip">
        <source></source>
        <translation>تخطي</translation>
    </message>
    <message id="ID_Volume">
        <source></source>
        <translation>الصوت:</translation>
    </message>
    <message id="ID_WelcomePage_StartTest">
        <source></source>
        <translation>بدء الفحص</translation>
    </message>
    <message id="ID_WelcomePage_Welcome">
        <source></source>
        <translation>مرحبًا بك في الصف الافتراضي</translation>
    </message>
    <message id="ID_hardwaremgrinterface_NoSpeakerFound">
        <source></source>
        <translation>لم يتم العثور على سماعة</translation>
    </message>
    <message id="ID_lumcamera_NoWebcamFound">
        <source></source>
        <translation>لم يتم العثور على كاميرا</translation>
    </message>
    <message id="ID_Host_Reason_NoServer">
        <source></source>
        <translation>لا يوجد خادم</translation>
    </message>
    <message id="ID_Host_Reason_NoSuchHost">
        <source></source>
        <translation>اسم الخادم غير معروف</translation>
    </message>
    <message id="ID_Host_Remedy">
        <source></source>
        <translation>ما العمل</translation>
    </message>
    <message id="ID_Host_Remedy_NoServer">
        <source></source>
        <translation>قيس هذا الكمبيوتر فقط لأنه لم يُحدَّد أي خادم، فاسأل مدرستك عن خادمها وحدّده بالخيار --server أو في ملف الإعدادات.</translation>
    </message>
    <message id="ID_Host_Remedy_NoAnswer">
        <source></source>
        <translation>لم يستجب الخادم، فتأكد من اتصالك بالإنترنت ومن أن جدار الحماية لا يحجب UDP.</translation>
    </message>
    <message id="ID_Host_Remedy_NoSuchHost">
        <source></source>
        <translation>اسم الخادم غير معروف، فتأكد من كتابته ومن اتصالك بالإنترنت.</translation>
    </message>
    <message id="ID_Host_Remedy_Slow">
        <source></source>
        <translation>الاتصال بطيء، فاستخدم كابل الشبكة أو اقترب من جهاز التوجيه اللاسلكي، وأوقف التنزيلات والمكالمات الأخرى.</translation>
    </message>
    <message id="ID_Host_Remedy_Lossy">
        <source></source>
        <translation>تضيع بيانات كثيرة في الطريق، فاستخدم كابل الشبكة أو اقترب من جهاز التوجيه اللاسلكي.</translation>
    </message>
    <message id="ID_Host_Remedy_LeftTooSoon">
        <source></source>
        <translation>غادرت هذه الخطوة قبل قياس أي شيء، فانتظر فيها حتى تظهر القيم.</translation>
    </message>
    <message id="ID_Host_Remedy_Absent">
        <source></source>
        <translation>لم يُعثر على أي جهاز، فصِل جهازًا أو شغّله ثم أعد الفحص.</translation>
    </message>
    <message id="ID_Host_Remedy_Off">
        <source></source>
        <translation>الجهاز متوقف في القائمة، فاختر جهازًا منها.</translation>
    </message>
    <message id="ID_Host_Remedy_Starting">
        <source></source>
        <translation>كان الجهاز لا يزال يبدأ التشغيل، فانتظر قليلًا قبل أن تجيب.</translation>
    </message>
    <message id="ID_Host_Remedy_Busy">
        <source></source>
        <translation>برنامج آخر يستخدم الجهاز، فأغلق ذلك البرنامج وأعد الفحص.</translation>
    </message>
    <message id="ID_Host_Remedy_Denied">
        <source></source>
        <translation>يرفض النظام الوصول إلى الجهاز، فاسمح به في إعدادات الخصوصية.</translation>
    </message>
    <message id="ID_Host_Remedy_Hung">
        <source></source>
        <translation>لم يستجب الجهاز، فافصله ثم صِله من جديد، أو أعد تشغيل الكمبيوتر.</translation>
    </message>
    <message id="ID_Host_Remedy_Stalled">
        <source></source>
        <translation>لم ترسل الكاميرا أي صورة، فافصلها ثم صِلها من جديد، أو اختر كاميرا أخرى.</translation>
    </message>
    <message id="ID_Host_Remedy_Black">
        <source></source>
        <translation>كانت الصورة سوداء، فافتح غطاء العدسة وشغّل الإضاءة.</translation>
    </message>
    <message id="ID_Host_Remedy_Frozen">
        <source></source>
        <translation>كانت الصورة ثابتة، فافصل الكاميرا ثم صِلها من جديد.</translation>
    </message>
    <message id="ID_Host_Remedy_Unplugged">
        <source></source>
        <translation>فُصل الجهاز أثناء الفحص، فصِله من جديد وتحقق من الكابل.</translation>
    </message>
    <message id="ID_Host_Remedy_NotBuilt">
        <source></source>
        <translation>لا يستطيع هذا البرنامج استخدام مثل هذه الأجهزة على هذا النظام، لذا جرّب جهازك في برنامج آخر.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerLost">
        <source></source>
        <translation>توقفت خدمة الصورة والصوت في النظام، فسجّل الخروج ثم الدخول، أو أعد تشغيل الكمبيوتر.</translation>
    </message>
    <message id="ID_Host_Remedy_Failed">
        <source></source>
        <translation>تعطل الجهاز، فصِله من جديد أو جرّب جهازًا آخر.</translation>
    </message>
    <message id="ID_Host_Remedy_Unreadable">
        <source></source>
        <translation>لا ترسل الكاميرا أي تنسيق يمكن عرضه هنا، فاختر كاميرا أخرى أو تنسيقًا آخر في إعداداتها.</translation>
    </message>
    <message id="ID_Host_Remedy_Silent">
        <source></source>
        <translation>لم يسجل الميكروفون شيئًا، فتحدث قريبًا منه أو تحقق من مفتاحه أو اختر ميكروفونًا آخر من القائمة.</translation>
    </message>
    <message id="ID_Host_Remedy_Muted">
        <source></source>
        <translation>الجهاز مكتوم، فألغِ كتمه.</translation>
    </message>
    <message id="ID_Host_Remedy_VolumeZero">
        <source></source>
        <translation>مستوى الصوت 0، فارفعه.</translation>
    </message>
    <message id="ID_Host_Remedy_WrongSound">
        <source></source>
        <translation>اخترت صوتًا غير الذي شُغّل، فارفع مستوى الصوت واستمع مرة أخرى.</translation>
    </message>
    <message id="ID_Host_Remedy_NotSeen">
        <source></source>
        <translation>لم ترَ نفسك مع أن الكاميرا أرسلت صورًا، فتحقق من الكاميرا المحددة.</translation>
    </message>
    <message id="ID_Host_Remedy_NotHeard">
        <source></source>
        <translation>لم تسمع شيئًا مع أن الصوت شُغّل، فارفع مستوى الصوت وتحقق من السماعة المحددة.</translation>
    </message>
    <message id="ID_Host_Remedy_SelfNotHeard">
        <source></source>
        <translation>لم تسمع نفسك مع أن الميكروفون سجّل صوتًا، فارفع مستوى الصوت وتحقق من السماعة المحددة.</translation>
    </message>
    <message id="ID_Host_Window_Title">
        <source></source>
        <translation>نتيجة الفحص</translation>
    </message>
    <message id="ID_Host_Window_Copy">
        <source></source>
        <translation>نسخ</translation>
    </message>
    <message id="ID_Host_Window_Save">
        <source></source>
        <translation>حفظ…</translation>
    </message>
    <message id="ID_Host_Window_Open">
        <source></source>
        <translation>فتح التقرير</translation>
    </message>
    <message id="ID_Host_Window_Close">
        <source></source>
        <translation>إغلاق</translation>
    </message>
    <message id="ID_Host_Window_Copied">
        <source></source>
        <translation>نُسخ التقرير. ألصقه قبل إغلاق هذه النافذة.</translation>
    </message>
    <message id="ID_Host_Window_Saved">
        <source></source>
        <translation>حُفظ التقرير في %1</translation>
    </message>
    <message id="ID_Host_Window_NotWritten">
        <source></source>
        <translation>تتعذر كتابة التقرير في %1. اختر مكانًا آخر.</translation>
    </message>
    <message id="ID_Host_Window_NotOpened">
        <source></source>
        <translation>لم يستطع أي برنامج فتح التقرير. وهو في %1</translation>
    </message>
</context>
</TS>
