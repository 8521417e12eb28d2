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
        <translation>هذا الكمبيوتر (خادم اختبار)</translation>
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
        <translation>الميكروفون:</translation>
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
        <translation>تخطٍّ</translation>
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
</context>
</TS>
