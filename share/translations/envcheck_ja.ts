<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="ID_CameraPage_1">
        <source></source>
        <translation>1. 機器が接続され、一覧で選ばれているか確認してください。</translation>
    </message>
    <message id="ID_CameraPage_2">
        <source></source>
        <translation>2. カメラを使っているほかのプログラムを終了してください。</translation>
    </message>
    <message id="ID_CameraPage_3">
        <source></source>
        <translation>3. レンズカバーを開けるか、キーでカメラをオンにしてください。</translation>
    </message>
    <message id="ID_CameraPage_4">
        <source></source>
        <translation>4. システムのプライバシー設定でカメラを許可してください。</translation>
    </message>
    <message id="ID_CameraPage_5">
        <source></source>
        <translation>5. パソコンを再起動するか、別の機器を試してください。</translation>
    </message>
    <message id="ID_CameraPage_Camera">
        <source></source>
        <translation>カメラ：</translation>
    </message>
    <message id="ID_CameraPage_CameraDisabled">
        <source></source>
        <translation>カメラがオフか無効です</translation>
    </message>
    <message id="ID_CameraPage_CannotSee">
        <source></source>
        <translation>見えません</translation>
    </message>
    <message id="ID_CameraPage_ClickHere">
        <source></source>
        <translation>映像が見えませんか？こちらをクリック</translation>
    </message>
    <message id="ID_CameraPage_DisabledWillMakeCameraUnusable">
        <source></source>
        <translation>カメラがオフです。ここで選ぶか、有効にしてください。</translation>
    </message>
    <message id="ID_CameraPage_No">
        <source></source>
        <translation>見えません</translation>
    </message>
    <message id="ID_CameraPage_NoCameraImageWasDetected">
        <source></source>
        <translation>カメラの映像が届きません</translation>
    </message>
    <message id="ID_CameraPage_NotDetected">
        <source></source>
        <translation>まだ回答されていません</translation>
    </message>
    <message id="ID_CameraPage_Yes">
        <source></source>
        <translation>はい、見えます</translation>
    </message>
    <message id="ID_CameraPage_choseNo">
        <source></source>
        <translation>自分の映像が見えません</translation>
    </message>
    <message id="ID_Camera_Check">
        <source></source>
        <translation>カメラ</translation>
    </message>
    <message id="ID_CheckResultPage_Abnormal">
        <source></source>
        <translation>異常</translation>
    </message>
    <message id="ID_CheckResultPage_CheckEquipmentAndRetest">
        <source></source>
        <translation>確認して再度お試しください。</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentAbnormal">
        <source></source>
        <translation>問題が見つかりました</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentNormal">
        <source></source>
        <translation>すべて正常です</translation>
    </message>
    <message id="ID_CheckResultPage_Headphone">
        <source></source>
        <translation>音声出力</translation>
    </message>
    <message id="ID_CheckResultPage_Normal">
        <source></source>
        <translation>正常</translation>
    </message>
    <message id="ID_CheckResultPage_OK">
        <source></source>
        <translation>授業の準備ができました。</translation>
    </message>
    <message id="ID_CheckResultPage_Redetect">
        <source></source>
        <translation>再チェック</translation>
    </message>
    <message id="ID_CheckResultPage_System">
        <source></source>
        <translation>システム</translation>
    </message>
    <message id="ID_ContentPage_NotFinishedIfLeave">
        <source></source>
        <translation>チェックがまだ終わっていません。終了しますか？</translation>
    </message>
    <message id="ID_Engine_BuiltInResponder">
        <source></source>
        <translation>未測定：サーバー未設定</translation>
    </message>
    <message id="ID_Engine_Camera_Absent">
        <source></source>
        <translation>カメラが見つかりません。
このパソコンにカメラを接続してください。</translation>
    </message>
    <message id="ID_Engine_Camera_Black">
        <source></source>
        <translation>映像が真っ暗です。
レンズカバーを開けるか、明かりをつけてください。</translation>
    </message>
    <message id="ID_Engine_Camera_Busy">
        <source></source>
        <translation>別のプログラムがカメラを使用中です。
そのプログラムを終了してください。</translation>
    </message>
    <message id="ID_Engine_Camera_BusyBy">
        <source></source>
        <translation>%1 がカメラを使用中です。
このプログラムを終了してください。</translation>
    </message>
    <message id="ID_Engine_Camera_Denied">
        <source></source>
        <translation>システムがカメラの使用を拒否しています。
システムのプライバシー設定で許可してください。</translation>
    </message>
    <message id="ID_Engine_Camera_Failed">
        <source></source>
        <translation>カメラが動作しません。
接続し直すか、別のカメラを選んでください。</translation>
    </message>
    <message id="ID_Engine_Camera_Hung">
        <source></source>
        <translation>カメラが応答しません。
接続し直すか、パソコンを再起動してください。</translation>
    </message>
    <message id="ID_Engine_Camera_NotBuilt">
        <source></source>
        <translation>このプログラムは、このシステムではカメラを使えません。
別のプログラムでお試しください。</translation>
    </message>
    <message id="ID_Engine_Camera_ServerLost">
        <source></source>
        <translation>このパソコンのカメラサービスが動いていません。
しばらく待つか、パソコンを再起動してください。</translation>
    </message>
    <message id="ID_Engine_Camera_Stalled">
        <source></source>
        <translation>カメラの映像が届きません。
接続し直すか、別のカメラを選んでください。</translation>
    </message>
    <message id="ID_Engine_Camera_Starting">
        <source></source>
        <translation>カメラを起動しています…</translation>
    </message>
    <message id="ID_Engine_Camera_Unplugged">
        <source></source>
        <translation>カメラが取り外されました。
もう一度接続するか、別のカメラを選んでください。</translation>
    </message>
    <message id="ID_Engine_Camera_Unreadable">
        <source></source>
        <translation>このカメラの映像はここでは表示できません。
別のカメラを選ぶか、カメラの設定で別の形式を選んでください。</translation>
    </message>
    <message id="ID_Engine_File_BadEnd">
        <source></source>
        <translation>Windows では名前の末尾に点や空白を使えません</translation>
    </message>
    <message id="ID_Engine_File_BadLetter">
        <source></source>
        <translation>Windows では名前に &lt; &gt; : " | ? * や制御文字を使えません</translation>
    </message>
    <message id="ID_Engine_File_DeadLink">
        <source></source>
        <translation>リンク先のないリンクです</translation>
    </message>
    <message id="ID_Engine_File_DeviceName">
        <source></source>
        <translation>%1 は Windows ではデバイスの名前です</translation>
    </message>
    <message id="ID_Engine_File_DiskSilent">
        <source></source>
        <translation>ディスクが応答しません</translation>
    </message>
    <message id="ID_Engine_File_ForeignLink">
        <source></source>
        <translation>ほかのユーザーが所有するリンクです</translation>
    </message>
    <message id="ID_Engine_File_LockHeld">
        <source></source>
        <translation>ほかのプログラムがロックファイル %1 を使用しています</translation>
    </message>
    <message id="ID_Engine_File_LockNotMade">
        <source></source>
        <translation>ロックファイルを作成できません</translation>
    </message>
    <message id="ID_Engine_File_LockNotRegular">
        <source></source>
        <translation>ロックファイル %1 は通常のファイルではありません</translation>
    </message>
    <message id="ID_Engine_File_NoFolder">
        <source></source>
        <translation>フォルダーを作成できません</translation>
    </message>
    <message id="ID_Engine_File_NotMade">
        <source></source>
        <translation>新しい内容を作れません。ディスクがいっぱいではありませんか</translation>
    </message>
    <message id="ID_Engine_File_NotRegular">
        <source></source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message id="ID_Engine_File_TooLarge">
        <source></source>
        <translation>%1 MiB を超えています</translation>
    </message>
    <message id="ID_Engine_File_TooManyChanges">
        <source></source>
        <translation>ディスクへの書き込みを待つ変更が多すぎます</translation>
    </message>
    <message id="ID_Engine_Json_Document">
        <source></source>
        <translation>文書全体がオブジェクトでなければなりません</translation>
    </message>
    <message id="ID_Engine_Json_Empty">
        <source></source>
        <translation>空にできません</translation>
    </message>
    <message id="ID_Engine_Json_Flag">
        <source></source>
        <translation>true か false でなければなりません</translation>
    </message>
    <message id="ID_Engine_Json_Invalid">
        <source></source>
        <translation>正しい JSON ではありません: %1</translation>
    </message>
    <message id="ID_Engine_Json_List">
        <source></source>
        <translation>リストでなければなりません</translation>
    </message>
    <message id="ID_Engine_Json_Missing">
        <source></source>
        <translation>がありません</translation>
    </message>
    <message id="ID_Engine_Json_Number">
        <source></source>
        <translation>数値でなければなりません</translation>
    </message>
    <message id="ID_Engine_Json_Object">
        <source></source>
        <translation>オブジェクトでなければなりません</translation>
    </message>
    <message id="ID_Engine_Json_ShortList">
        <source></source>
        <translation>%1 個以下の要素のリストでなければなりません</translation>
    </message>
    <message id="ID_Engine_Json_ShortText">
        <source></source>
        <translation>%1 文字以下のテキストでなければなりません</translation>
    </message>
    <message id="ID_Engine_Json_Text">
        <source></source>
        <translation>テキストでなければなりません</translation>
    </message>
    <message id="ID_Engine_Json_Twice">
        <source></source>
        <translation>が二度現れます</translation>
    </message>
    <message id="ID_Engine_Json_Unknown">
        <source></source>
        <translation>はここで使えるフィールドではありません</translation>
    </message>
    <message id="ID_Engine_Json_WholeNumber">
        <source></source>
        <translation>%1 から %2 までの整数でなければなりません</translation>
    </message>
    <message id="ID_Engine_Json_Word">
        <source></source>
        <translation>次のいずれかでなければなりません: %1</translation>
    </message>
    <message id="ID_Engine_Json_WordList">
        <source></source>
        <translation>次の語のリストでなければなりません: %1</translation>
    </message>
    <message id="ID_Engine_NoCamera">
        <source></source>
        <translation>カメラなし</translation>
    </message>
    <message id="ID_Engine_NoMicrophone">
        <source></source>
        <translation>マイクなし</translation>
    </message>
    <message id="ID_Engine_NoSpeaker">
        <source></source>
        <translation>スピーカーが見つかりません</translation>
    </message>
    <message id="ID_Engine_NoSpeakerSelected">
        <source></source>
        <translation>スピーカーが選ばれていません</translation>
    </message>
    <message id="ID_Engine_NotConnected">
        <source></source>
        <translation>接続されていません</translation>
    </message>
    <message id="ID_Engine_Scenario_Base">
        <source></source>
        <translation>付属のシナリオの名前でなければなりません</translation>
    </message>
    <message id="ID_Engine_Scenario_Levels">
        <source></source>
        <translation>[ミリ秒, 音量] でなければなりません。ミリ秒は 0 から増え、音量は 0 から 1 までです</translation>
    </message>
    <message id="ID_Engine_Scenario_NoDevice">
        <source></source>
        <translation>このシナリオにその %1 はありません</translation>
    </message>
    <message id="ID_Engine_Scenario_NoVolume">
        <source></source>
        <translation>カメラに音量はありません</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRead">
        <source></source>
        <translation>読み込めません: %1</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRegular">
        <source></source>
        <translation>通常のファイルではありません。シナリオファイルを指定してください</translation>
    </message>
    <message id="ID_Engine_Scenario_SameId">
        <source></source>
        <translation>リストの中で一つだけでなければなりません</translation>
    </message>
    <message id="ID_Engine_Scenario_TooLarge">
        <source></source>
        <translation>1 MiB を超えています。シナリオファイルを指定してください</translation>
    </message>
    <message id="ID_Engine_Scenario_TooManyDevices">
        <source></source>
        <translation>この種類の異なるデバイスが %1 台を超えています。以前に接続したことのあるデバイスを接続してください</translation>
    </message>
    <message id="ID_Engine_Scenario_Unknown">
        <source></source>
        <translation>その名前のファイルも付属のシナリオもありません（あるもの: %1）</translation>
    </message>
    <message id="ID_Engine_SoundNotBuilt">
        <source></source>
        <translation>音声なし：このシステムには未対応です</translation>
    </message>
    <message id="ID_Engine_SoundServerLost">
        <source></source>
        <translation>音声サービスが動いていません</translation>
    </message>
    <message id="ID_Engine_SoundServerSilent">
        <source></source>
        <translation>音声サービスが応答しません</translation>
    </message>
    <message id="ID_Engine_TelephoneQuality">
        <source></source>
        <translation>%1（電話品質）</translation>
    </message>
    <message id="ID_HeadsetPage_2">
        <source></source>
        <translation>2. 音量を上げ、ミュートになっていないか確認してください。</translation>
    </message>
    <message id="ID_HeadsetPage_3">
        <source></source>
        <translation>3. プラグを奥まで差すか、Bluetooth をつなぎ直してください。</translation>
    </message>
    <message id="ID_HeadsetPage_4">
        <source></source>
        <translation>4. システムのサウンド設定で同じ出力先を選んでください。</translation>
    </message>
    <message id="ID_HeadsetPage_Bubble">
        <source></source>
        <translation>泡</translation>
    </message>
    <message id="ID_HeadsetPage_CanHear">
        <source></source>
        <translation>はい、聞こえます</translation>
    </message>
    <message id="ID_HeadsetPage_CanNotHear">
        <source></source>
        <translation>聞こえません</translation>
    </message>
    <message id="ID_HeadsetPage_ChoseWrong">
        <source></source>
        <translation>正しい音が選ばれていません</translation>
    </message>
    <message id="ID_HeadsetPage_ClickHere">
        <source></source>
        <translation>音が聞こえませんか？こちらをクリック</translation>
    </message>
    <message id="ID_HeadsetPage_Doorbell">
        <source></source>
        <translation>ドアチャイム</translation>
    </message>
    <message id="ID_HeadsetPage_Piano">
        <source></source>
        <translation>ピアノ</translation>
    </message>
    <message id="ID_HeadsetPage_Play">
        <source></source>
        <translation>再生</translation>
    </message>
    <message id="ID_HeadsetPage_PlayAgain">
        <source></source>
        <translation>もう一度</translation>
    </message>
    <message id="ID_HeadsetPage_Playing">
        <source></source>
        <translation>再生中</translation>
    </message>
    <message id="ID_HeadsetPage_PleaseSelectTheAnswer">
        <source></source>
        <translation>どの音が聞こえましたか？</translation>
    </message>
    <message id="ID_HeadsetPage_Saxophone">
        <source></source>
        <translation>サックス</translation>
    </message>
    <message id="ID_HeadsetPage_Seagull">
        <source></source>
        <translation>カモメ</translation>
    </message>
    <message id="ID_HeadsetPage_Shutter">
        <source></source>
        <translation>シャッター</translation>
    </message>
    <message id="ID_HeadsetPage_Speaker">
        <source></source>
        <translation>出力：</translation>
    </message>
    <message id="ID_HeadsetPage_Thunder">
        <source></source>
        <translation>雷</translation>
    </message>
    <message id="ID_HeadsetPage_Tip">
        <source></source>
        <translation>再生ボタンを押して音を聞き、聞こえた音を選んでください。</translation>
    </message>
    <message id="ID_HeadsetPage_Typing">
        <source></source>
        <translation>タイピング</translation>
    </message>
    <message id="ID_HeadsetPage_choseNo">
        <source></source>
        <translation>音が聞こえません</translation>
    </message>
    <message id="ID_HeadsetPage_play">
        <source></source>
        <translation>再生</translation>
    </message>
    <message id="ID_HeadsetPage_sound0">
        <source></source>
        <translation>音 1</translation>
    </message>
    <message id="ID_HeadsetPage_sound1">
        <source></source>
        <translation>音 2</translation>
    </message>
    <message id="ID_HeadsetPage_sound2">
        <source></source>
        <translation>音 3</translation>
    </message>
    <message id="ID_HeadsetPage_sound3">
        <source></source>
        <translation>音 4</translation>
    </message>
    <message id="ID_Host_Changes">
        <source></source>
        <translation>変更点</translation>
    </message>
    <message id="ID_Host_Changes_None">
        <source></source>
        <translation>その後の変更はありません。</translation>
    </message>
    <message id="ID_Host_Check_Loop">
        <source></source>
        <translation>音響ループ</translation>
    </message>
    <message id="ID_Host_Config_BadLine">
        <source></source>
        <translation>%1：各行は server=HOST のような KEY=VALUE か、セミコロンで始まるコメントにしてください</translation>
    </message>
    <message id="ID_Host_Config_BadValue">
        <source></source>
        <translation>%1：%2=%3：指定できるのは %4。ファイルを修正してください</translation>
    </message>
    <message id="ID_Host_Config_BadVariable">
        <source></source>
        <translation>%1=%2：指定できるのは %3</translation>
    </message>
    <message id="ID_Host_Config_UnknownKey">
        <source></source>
        <translation>%1：不明なキー %2。使えるキーは server、report-url、report-token-file です</translation>
    </message>
    <message id="ID_Host_Config_Unreadable">
        <source></source>
        <translation>%1：設定ファイルとして読み込めません。server=HOST のような行を含むテキストファイルを置くか、削除してください</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerLost">
        <source></source>
        <translation>カメラサービスが動いていません</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerSilent">
        <source></source>
        <translation>カメラサービスが応答しません</translation>
    </message>
    <message id="ID_Host_Devices_Cameras">
        <source></source>
        <translation>カメラ</translation>
    </message>
    <message id="ID_Host_Devices_Microphones">
        <source></source>
        <translation>マイク</translation>
    </message>
    <message id="ID_Host_Devices_None">
        <source></source>
        <translation>見つかりません</translation>
    </message>
    <message id="ID_Host_Devices_NotBuilt">
        <source></source>
        <translation>このプログラムは実機なしでビルドされています（ENVCHECK_DEVICES）。--platform scripted を指定してください</translation>
    </message>
    <message id="ID_Host_Devices_Speakers">
        <source></source>
        <translation>スピーカー</translation>
    </message>
    <message id="ID_Host_Display_Gone">
        <source></source>
        <translation>画面との接続が切れ、チェックも終了しました。X サーバーまたは Wayland コンポジターが終了しています。チェックを開始し直してください</translation>
    </message>
    <message id="ID_Host_Display_None">
        <source></source>
        <translation>チェックを開く画面がありません。デスクトップから、または xvfb-run で起動してください</translation>
    </message>
    <message id="ID_Host_Display_NotOpened">
        <source></source>
        <translation>画面 %1 を開けません。デスクトップから、または xvfb-run でチェックを起動してください</translation>
    </message>
    <message id="ID_Host_Exit_AllPassed">
        <source></source>
        <translation>すべて正常</translation>
    </message>
    <message id="ID_Host_Exit_BadInput">
        <source></source>
        <translation>指定されたファイルを使えない</translation>
    </message>
    <message id="ID_Host_Exit_CannotWrite">
        <source></source>
        <translation>ファイルまたはフォルダーに書き込めない</translation>
    </message>
    <message id="ID_Host_Exit_LeftEarly">
        <source></source>
        <translation>途中で終了</translation>
    </message>
    <message id="ID_Host_Exit_PutOut">
        <source></source>
        <translation>教室側がセッションを終了</translation>
    </message>
    <message id="ID_Host_Exit_SomeFailed">
        <source></source>
        <translation>異常のあるチェックがある</translation>
    </message>
    <message id="ID_Host_Exit_TourProblems">
        <source></source>
        <translation>ツアーで不具合が見つかった</translation>
    </message>
    <message id="ID_Host_Exit_Unavailable">
        <source></source>
        <translation>画面、ポート、サーバーのいずれかがない</translation>
    </message>
    <message id="ID_Host_Exit_WrongUsage">
        <source></source>
        <translation>使い方の誤り（メッセージがオプションを示す）</translation>
    </message>
    <message id="ID_Host_Figure_Answered">
        <source></source>
        <translation>応答のあったプローブ</translation>
    </message>
    <message id="ID_Host_Figure_Bandwidth">
        <source></source>
        <translation>拾えた最高周波数</translation>
    </message>
    <message id="ID_Host_Figure_Black">
        <source></source>
        <translation>真っ黒な映像</translation>
    </message>
    <message id="ID_Host_Figure_Brightness">
        <source></source>
        <translation>明るさ</translation>
    </message>
    <message id="ID_Host_Figure_Clipped">
        <source></source>
        <translation>音割れ</translation>
    </message>
    <message id="ID_Host_Figure_DefaultAfter">
        <source></source>
        <translation>終了時の既定の機器</translation>
    </message>
    <message id="ID_Host_Figure_DefaultBefore">
        <source></source>
        <translation>開始時の既定の機器</translation>
    </message>
    <message id="ID_Host_Figure_Delay">
        <source></source>
        <translation>往復時間（中央値）</translation>
    </message>
    <message id="ID_Host_Figure_Delay5">
        <source></source>
        <translation>往復時間（5 パーセンタイル）</translation>
    </message>
    <message id="ID_Host_Figure_Delay95">
        <source></source>
        <translation>往復時間（95 パーセンタイル）</translation>
    </message>
    <message id="ID_Host_Figure_FirstPicture">
        <source></source>
        <translation>最初の映像までの時間</translation>
    </message>
    <message id="ID_Host_Figure_Frozen">
        <source></source>
        <translation>止まった映像</translation>
    </message>
    <message id="ID_Host_Figure_Height">
        <source></source>
        <translation>映像の高さ</translation>
    </message>
    <message id="ID_Host_Figure_HumFrequency">
        <source></source>
        <translation>電源ハムの周波数</translation>
    </message>
    <message id="ID_Host_Figure_HumShare">
        <source></source>
        <translation>雑音中の電源ハム</translation>
    </message>
    <message id="ID_Host_Figure_Jitter">
        <source></source>
        <translation>ジッター</translation>
    </message>
    <message id="ID_Host_Figure_Level">
        <source></source>
        <translation>音量レベル</translation>
    </message>
    <message id="ID_Host_Figure_LoopDelay">
        <source></source>
        <translation>スピーカーからマイクまでの遅延</translation>
    </message>
    <message id="ID_Host_Figure_LoopLevel">
        <source></source>
        <translation>マイクでのレベル</translation>
    </message>
    <message id="ID_Host_Figure_Loss">
        <source></source>
        <translation>パケット損失</translation>
    </message>
    <message id="ID_Host_Figure_Modes">
        <source></source>
        <translation>カメラのモード</translation>
    </message>
    <message id="ID_Host_Figure_MovedByUser">
        <source></source>
        <translation>ユーザーが音量を変更</translation>
    </message>
    <message id="ID_Host_Figure_MutedAfter">
        <source></source>
        <translation>終了時にミュート</translation>
    </message>
    <message id="ID_Host_Figure_MutedBefore">
        <source></source>
        <translation>開始時にミュート</translation>
    </message>
    <message id="ID_Host_Figure_NoiseFloor">
        <source></source>
        <translation>ノイズフロア</translation>
    </message>
    <message id="ID_Host_Figure_OneWayDelay">
        <source></source>
        <translation>片道遅延（往復の半分）</translation>
    </message>
    <message id="ID_Host_Figure_Peak">
        <source></source>
        <translation>最大音量</translation>
    </message>
    <message id="ID_Host_Figure_Pictures">
        <source></source>
        <translation>映像のフレーム数</translation>
    </message>
    <message id="ID_Host_Figure_Program">
        <source></source>
        <translation>使用中のプログラム</translation>
    </message>
    <message id="ID_Host_Figure_Rate">
        <source></source>
        <translation>フレームレート</translation>
    </message>
    <message id="ID_Host_Figure_Seconds">
        <source></source>
        <translation>測定時間</translation>
    </message>
    <message id="ID_Host_Figure_Sent">
        <source></source>
        <translation>送信したプローブ</translation>
    </message>
    <message id="ID_Host_Figure_SoundHeard">
        <source></source>
        <translation>音を検出</translation>
    </message>
    <message id="ID_Host_Figure_SoundPlayed">
        <source></source>
        <translation>再生した音</translation>
    </message>
    <message id="ID_Host_Figure_VolumeAfter">
        <source></source>
        <translation>終了時の音量</translation>
    </message>
    <message id="ID_Host_Figure_VolumeBefore">
        <source></source>
        <translation>開始時の音量</translation>
    </message>
    <message id="ID_Host_Figure_Width">
        <source></source>
        <translation>映像の幅</translation>
    </message>
    <message id="ID_Host_File_IsFolder">
        <source></source>
        <translation>フォルダーです。その中のファイルを指定してください</translation>
    </message>
    <message id="ID_Host_File_NameOther">
        <source></source>
        <translation>%1。別のファイルを指定してください</translation>
    </message>
    <message id="ID_Host_File_NoFolder">
        <source></source>
        <translation>フォルダー %1 がありません。作成するか、別のファイルを指定してください</translation>
    </message>
    <message id="ID_Host_File_NoObject">
        <source></source>
        <translation>文書がオブジェクトではありません</translation>
    </message>
    <message id="ID_Host_File_NoReport">
        <source></source>
        <translation>%1 は JSON のレポートではありません（%2）。チェックが書き出したレポートを指定してください</translation>
    </message>
    <message id="ID_Host_File_NoRight">
        <source></source>
        <translation>書き込む権限がありません。別のファイルを指定してください</translation>
    </message>
    <message id="ID_Host_File_NotOrdinary">
        <source></source>
        <translation>通常のファイルではありません。別のファイルを指定してください</translation>
    </message>
    <message id="ID_Host_File_NotRead">
        <source></source>
        <translation>%1 を読み込めません：%2。チェックが書き出したレポートを指定してください</translation>
    </message>
    <message id="ID_Host_File_NotWritten">
        <source></source>
        <translation>%1 に書き込めません：%2</translation>
    </message>
    <message id="ID_Host_File_TooLarge">
        <source></source>
        <translation>大きすぎます</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodPicture">
        <source></source>
        <translation>「いいえ」の回答ですが、動く映像が届いていました。</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodSound">
        <source></source>
        <translation>「いいえ」の回答ですが、マイクは音を拾っていました。</translation>
    </message>
    <message id="ID_Host_Flag_NoToRightSound">
        <source></source>
        <translation>「いいえ」の回答ですが、正しい音を選んでいました。</translation>
    </message>
    <message id="ID_Host_Flag_YesToBlackPicture">
        <source></source>
        <translation>真っ黒な映像に「はい」と回答しました。</translation>
    </message>
    <message id="ID_Host_Flag_YesToFrozenPicture">
        <source></source>
        <translation>止まった映像に「はい」と回答しました。</translation>
    </message>
    <message id="ID_Host_Flag_YesToMutedSpeaker">
        <source></source>
        <translation>スピーカーがミュートなのに「はい」と回答しました。</translation>
    </message>
    <message id="ID_Host_Flag_YesToSilence">
        <source></source>
        <translation>「はい」の回答ですが、マイクは何も拾っていません。</translation>
    </message>
    <message id="ID_Host_Flag_YesToWrongSound">
        <source></source>
        <translation>「はい」の回答ですが、正しい音を選んでいません。</translation>
    </message>
    <message id="ID_Host_Flag_YesWithoutPictures">
        <source></source>
        <translation>「はい」の回答ですが、映像は届いていません。</translation>
    </message>
    <message id="ID_Host_Grade">
        <source></source>
        <translation>ネットワーク品質</translation>
    </message>
    <message id="ID_Host_Grade_Fair">
        <source></source>
        <translation>普通</translation>
    </message>
    <message id="ID_Host_Grade_FairUpTo">
        <source></source>
        <translation>%1 までは普通</translation>
    </message>
    <message id="ID_Host_Grade_Good">
        <source></source>
        <translation>良好</translation>
    </message>
    <message id="ID_Host_Grade_GoodUpTo">
        <source></source>
        <translation>%1 までは良好</translation>
    </message>
    <message id="ID_Host_Grade_Poor">
        <source></source>
        <translation>不良</translation>
    </message>
    <message id="ID_Host_Help_Arguments">
        <source></source>
        <translation>引数：</translation>
    </message>
    <message id="ID_Host_Help_Check">
        <source></source>
        <translation>オンライン授業の前に、ネットワーク、カメラ、スピーカー、マイクをチェックします。</translation>
    </message>
    <message id="ID_Host_Help_Commands">
        <source></source>
        <translation>コマンド：</translation>
    </message>
    <message id="ID_Host_Help_Devices">
        <source></source>
        <translation>カメラ、マイク、スピーカーとその状態を一覧表示します。終了コード 0：一覧は完全です（何も見つからない場合を含む）。69：カメラサービスまたは音声サービスが動いていないか、応答しません。</translation>
    </message>
    <message id="ID_Host_Help_ExitCodes">
        <source></source>
        <translation>終了コード：</translation>
    </message>
    <message id="ID_Host_Help_File">
        <source></source>
        <translation>チェックが書き出したレポート。- は標準入力です。省略すると、前回のチェックのレポートです。</translation>
    </message>
    <message id="ID_Host_Help_History">
        <source></source>
        <translation>過去のチェックを、結果とレポートとともに一覧表示します。</translation>
    </message>
    <message id="ID_Host_Help_Network">
        <source></source>
        <translation>遅延とパケット損失を測定し、値を順次表示します。</translation>
    </message>
    <message id="ID_Host_Help_NoCommand">
        <source></source>
        <translation>コマンドを付けないとチェックが開きます。各コマンドにも --help があります。</translation>
    </message>
    <message id="ID_Host_Help_Options">
        <source></source>
        <translation>オプション：</translation>
    </message>
    <message id="ID_Host_Help_Report">
        <source></source>
        <translation>以前のチェックのレポートをテキスト、HTML、JSON で、または複数をまとめて 1 つの表で表示します。</translation>
    </message>
    <message id="ID_Host_Help_Serve">
        <source></source>
        <translation>小さな STUN サーバーとして、停止されるまでほかのパソコンの測定に応答します。</translation>
    </message>
    <message id="ID_Host_Help_Usage">
        <source></source>
        <translation>使い方：%1</translation>
    </message>
    <message id="ID_Host_Help_UsageOptions">
        <source></source>
        <translation>[オプション]</translation>
    </message>
    <message id="ID_Host_History_NoReport">
        <source></source>
        <translation>まだチェックのレポートがありません。チェックを実行するか、レポートのファイル（FILE）を指定してください</translation>
    </message>
    <message id="ID_Host_History_None">
        <source></source>
        <translation>過去のチェックはありません。</translation>
    </message>
    <message id="ID_Host_Language_Unknown">
        <source></source>
        <translation>--language %1：この言語のテキストはありません。次から指定してください：%2</translation>
    </message>
    <message id="ID_Host_LastGoodRun">
        <source></source>
        <translation>前回すべて正常だったチェック</translation>
    </message>
    <message id="ID_Host_LastGoodRun_None">
        <source></source>
        <translation>すべて正常だった以前のチェックはありません。</translation>
    </message>
    <message id="ID_Host_MeasuringFailed">
        <source></source>
        <translation>測定失敗：%1</translation>
    </message>
    <message id="ID_Host_Network_Ends">
        <source></source>
        <translation>サーバー %1、このパソコン %2</translation>
    </message>
    <message id="ID_Host_Network_Figures">
        <source></source>
        <translation>遅延 %1 ms、ジッター %2 ms、パケット損失 %3%、送信 %4、応答 %5：%6</translation>
    </message>
    <message id="ID_Host_Network_NameServer">
        <source></source>
        <translation>未測定：サーバーがありません。--server、%1、または %2 で指定してください</translation>
    </message>
    <message id="ID_Host_Network_NoAnswer">
        <source></source>
        <translation>応答なし、パケット損失 %1%、送信 %2、応答 %3</translation>
    </message>
    <message id="ID_Host_Network_NoRoute">
        <source></source>
        <translation>サーバーへの経路がありません、パケット損失 %1%、送信 %2、応答 %3</translation>
    </message>
    <message id="ID_Host_Network_NoSuchServer">
        <source></source>
        <translation>サーバーが見つかりません、パケット損失 %1%、送信 %2、応答 %3</translation>
    </message>
    <message id="ID_Host_Network_Refused">
        <source></source>
        <translation>サーバーが拒否しました、パケット損失 %1%、送信 %2、応答 %3</translation>
    </message>
    <message id="ID_Host_No">
        <source></source>
        <translation>いいえ</translation>
    </message>
    <message id="ID_Host_NoAnswer">
        <source></source>
        <translation>未回答</translation>
    </message>
    <message id="ID_Host_NotMeasured">
        <source></source>
        <translation>未測定：%1</translation>
    </message>
    <message id="ID_Host_Option_Account">
        <source></source>
        <translation>表示するアカウント。既定はシステムのユーザー。</translation>
    </message>
    <message id="ID_Host_Option_Cdn">
        <source></source>
        <translation>表示する CDN。</translation>
    </message>
    <message id="ID_Host_Option_Count">
        <source></source>
        <translation>N 個の値を表示したら終了します。指定しないと停止されるまで続けます。</translation>
    </message>
    <message id="ID_Host_Option_Diagnose">
        <source></source>
        <translation>--unattended と同じように測定し、レポート、機器、バージョン、ログを、原因を調べる人のために FILE.zip にまとめます。--redact がなければ、名前とアドレスは省かれます。</translation>
    </message>
    <message id="ID_Host_Option_FilesFrom">
        <source></source>
        <translation>レポートの名前を FILE からも読み込みます（1 行に 1 つ）。- は標準入力です。</translation>
    </message>
    <message id="ID_Host_Option_Format">
        <source></source>
        <translation>text（既定）、html、json。多数のレポートには room（表）、map（レポートごとのタイルを並べたページ）、csv、jsonl。</translation>
    </message>
    <message id="ID_Host_Option_Help">
        <source></source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message id="ID_Host_Option_Json">
        <source></source>
        <translation>表の代わりに JSON を出力します。</translation>
    </message>
    <message id="ID_Host_Option_Language">
        <source></source>
        <translation>テキストの言語（en、zh_CN など）。既定はシステムの言語。</translation>
    </message>
    <message id="ID_Host_Option_Loop">
        <source></source>
        <translation>--unattended と併用：選択中のスピーカーで小さな上昇音を 1 秒間再生し、選択中のマイクで聞き取れるか調べます。音が出ます。</translation>
    </message>
    <message id="ID_Host_Option_Nickname">
        <source></source>
        <translation>表示するニックネーム。既定はシステムのユーザー。</translation>
    </message>
    <message id="ID_Host_Option_Platform">
        <source></source>
        <translation>チェックする機器：devices（このパソコンの機器、既定）または scripted（シミュレーション）。</translation>
    </message>
    <message id="ID_Host_Option_Port">
        <source></source>
        <translation>応答する UDP ポート。既定は 3478、0 なら空きポートを使います。</translation>
    </message>
    <message id="ID_Host_Option_Quiet">
        <source></source>
        <translation>チェックで問題があっても結果のウィンドウを開きません。</translation>
    </message>
    <message id="ID_Host_Option_Redact">
        <source></source>
        <translation>省く情報：none（なし、既定）、personal（アドレス、名前、アカウント）、または hash（短い記号に置き換え）。</translation>
    </message>
    <message id="ID_Host_Option_Report">
        <source></source>
        <translation>レポートを既定の場所ではなく FILE に書き込みます。拡張子（.json、.html、.txt）で形式が決まります。- は標準出力で、JSON です。</translation>
    </message>
    <message id="ID_Host_Option_ReportTokenFile">
        <source></source>
        <translation>レポートサーバーが求めるトークンのファイル。読み取れるのは本人またはグループだけにします。</translation>
    </message>
    <message id="ID_Host_Option_ReportUrl">
        <source></source>
        <translation>レポートとそのコードの送信先アドレス。--redact がなければ、名前とアドレスは除かれます。</translation>
    </message>
    <message id="ID_Host_Option_Results">
        <source></source>
        <translation>変更のたびに、結果だけを JSON で FILE にも書き込みます。- は標準出力で、最後に書き込みます。</translation>
    </message>
    <message id="ID_Host_Option_Scenario">
        <source></source>
        <translation>シミュレーションの内容：ファイル、または all-well など付属シナリオの名前。--platform scripted も指定したことになります。</translation>
    </message>
    <message id="ID_Host_Option_Server">
        <source></source>
        <translation>遅延とパケット損失を測定する相手の STUN サーバー。stun:HOST:PORT とも書けます。ポートがなければドメインの DNS レコード（_stun._udp）を調べ、なければ 3478 です。ENVCHECK_SERVER や設定ファイルでも指定できます。サーバーがなければこのパソコン自身が応答し、ネットワークは測定されません。</translation>
    </message>
    <message id="ID_Host_Option_Tour">
        <source></source>
        <translation>すべての手順を自動で進め、それぞれの画像を FOLDER に保存します。</translation>
    </message>
    <message id="ID_Host_Option_Unattended">
        <source></source>
        <translation>ウィンドウも操作する人もなしで測定します。--json ファイル（- は標準出力）でレポートを書き込みます。終了コード：0 動作、1 対処が必要、69 サービスまたはサーバーがない。</translation>
    </message>
    <message id="ID_Host_Option_Verbose">
        <source></source>
        <translation>ログをターミナルにも出力します。</translation>
    </message>
    <message id="ID_Host_Option_Version">
        <source></source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message id="ID_Host_Outcome_BrokenOff">
        <source></source>
        <translation>無人実行：すべてを測定する前に終了しました</translation>
    </message>
    <message id="ID_Host_Outcome_Failed">
        <source></source>
        <translation>問題ありで完了</translation>
    </message>
    <message id="ID_Host_Outcome_Faulty">
        <source></source>
        <translation>無人実行：対処が必要な項目があります</translation>
    </message>
    <message id="ID_Host_Outcome_LeftEarly">
        <source></source>
        <translation>途中で終了</translation>
    </message>
    <message id="ID_Host_Outcome_Passed">
        <source></source>
        <translation>すべて正常</translation>
    </message>
    <message id="ID_Host_Outcome_PutOut">
        <source></source>
        <translation>教室側がセッションを終了</translation>
    </message>
    <message id="ID_Host_Outcome_Unavailable">
        <source></source>
        <translation>無人実行：サービスが足りないため、すべては測定できませんでした</translation>
    </message>
    <message id="ID_Host_Outcome_Works">
        <source></source>
        <translation>無人実行：測定したものはすべて動作しています</translation>
    </message>
    <message id="ID_Host_OutputNotWritten">
        <source></source>
        <translation>出力を書き込めません。ディスクの空き容量を確認してください</translation>
    </message>
    <message id="ID_Host_Reason_Absent">
        <source></source>
        <translation>機器がありません</translation>
    </message>
    <message id="ID_Host_Reason_Busy">
        <source></source>
        <translation>別のプログラムが使用しています</translation>
    </message>
    <message id="ID_Host_Reason_Denied">
        <source></source>
        <translation>システムが使用を拒否しました</translation>
    </message>
    <message id="ID_Host_Reason_Failed">
        <source></source>
        <translation>機器が故障しました</translation>
    </message>
    <message id="ID_Host_Reason_Hung">
        <source></source>
        <translation>機器が応答しません</translation>
    </message>
    <message id="ID_Host_Reason_Muted">
        <source></source>
        <translation>機器がミュートになっています</translation>
    </message>
    <message id="ID_Host_Reason_NoAnswer">
        <source></source>
        <translation>サーバーが応答しません</translation>
    </message>
    <message id="ID_Host_Reason_NoRoute">
        <source></source>
        <translation>サーバーへの経路がありません</translation>
    </message>
    <message id="ID_Host_Reason_NotBuilt">
        <source></source>
        <translation>このシステムには対応していません</translation>
    </message>
    <message id="ID_Host_Reason_NotOffered">
        <source></source>
        <translation>このエンジンでは実行できません</translation>
    </message>
    <message id="ID_Host_Reason_NotRecorded">
        <source></source>
        <translation>エンジンが記録しません</translation>
    </message>
    <message id="ID_Host_Reason_Off">
        <source></source>
        <translation>機器がオフです</translation>
    </message>
    <message id="ID_Host_Reason_Refused">
        <source></source>
        <translation>サーバーが拒否しました</translation>
    </message>
    <message id="ID_Host_Reason_Scripted">
        <source></source>
        <translation>シミュレーションの機器にこの値はありません</translation>
    </message>
    <message id="ID_Host_Reason_ServerLost">
        <source></source>
        <translation>音声サービスが動いていません</translation>
    </message>
    <message id="ID_Host_Reason_ServerSilent">
        <source></source>
        <translation>音声サービスが応答しません</translation>
    </message>
    <message id="ID_Host_Reason_Silent">
        <source></source>
        <translation>機器から何も届きません</translation>
    </message>
    <message id="ID_Host_Reason_StepNotOpened">
        <source></source>
        <translation>この手順は開かれていません</translation>
    </message>
    <message id="ID_Host_Reason_Unreadable">
        <source></source>
        <translation>カメラが表示できる形式の映像を送っていません</translation>
    </message>
    <message id="ID_Host_Reason_VolumeZero">
        <source></source>
        <translation>音量が 0 です</translation>
    </message>
    <message id="ID_Host_Redacted_Hash">
        <source></source>
        <translation>アドレス、名前、アカウントは短い記号に置き換えられています。</translation>
    </message>
    <message id="ID_Host_Redacted_Personal">
        <source></source>
        <translation>アドレス、名前、アカウントは省かれています。</translation>
    </message>
    <message id="ID_Host_Remedy_Clipping">
        <source></source>
        <translation>マイクの音量が大きすぎて音が割れています。マイクの音量を下げてください。</translation>
    </message>
    <message id="ID_Host_Remedy_Hum">
        <source></source>
        <translation>マイクにハム音（ブーンという雑音）が入っています。別の端子やケーブルを試し、電源から離してください。</translation>
    </message>
    <message id="ID_Host_Remedy_LoopNotHeard">
        <source></source>
        <translation>マイクにスピーカーの音が届きませんでした。両方の音量を上げ、同じヘッドセットか同じ部屋にあるか確認してください。</translation>
    </message>
    <message id="ID_Host_Remedy_ServerSilent">
        <source></source>
        <translation>システムの映像・音声サービスが応答しませんでした。サインインし直すか、パソコンを再起動してください。</translation>
    </message>
    <message id="ID_Host_ReportIsIn">
        <source></source>
        <translation>レポート：%1</translation>
    </message>
    <message id="ID_Host_Report_Answer">
        <source></source>
        <translation>回答</translation>
    </message>
    <message id="ID_Host_Report_BadTime">
        <source></source>
        <translation>2026-03-01T08:30:00Z のような時刻でなければなりません</translation>
    </message>
    <message id="ID_Host_Report_Causes">
        <source></source>
        <translation>原因</translation>
    </message>
    <message id="ID_Host_Report_Computer">
        <source></source>
        <translation>コンピューター</translation>
    </message>
    <message id="ID_Host_Report_Contradiction">
        <source></source>
        <translation>矛盾</translation>
    </message>
    <message id="ID_Host_Report_Count">
        <source></source>
        <translation>レポート数</translation>
    </message>
    <message id="ID_Host_Report_Device">
        <source></source>
        <translation>機器</translation>
    </message>
    <message id="ID_Host_Report_Id">
        <source></source>
        <translation>レポート番号</translation>
    </message>
    <message id="ID_Host_Report_Later">
        <source></source>
        <translation>その後の測定値</translation>
    </message>
    <message id="ID_Host_Report_Measurements">
        <source></source>
        <translation>測定値</translation>
    </message>
    <message id="ID_Host_Report_Notice">
        <source></source>
        <translation>注意</translation>
    </message>
    <message id="ID_Host_Report_OtherFormat">
        <source></source>
        <translation>これはチェックのレポートではありません</translation>
    </message>
    <message id="ID_Host_Report_OtherVersion">
        <source></source>
        <translation>%1 ですが、このプログラムが読めるのはバージョン %2 です</translation>
    </message>
    <message id="ID_Host_Report_Outcome">
        <source></source>
        <translation>結果</translation>
    </message>
    <message id="ID_Host_Report_Program">
        <source></source>
        <translation>プログラム</translation>
    </message>
    <message id="ID_Host_Report_Result">
        <source></source>
        <translation>判定</translation>
    </message>
    <message id="ID_Host_Report_RightSound">
        <source></source>
        <translation>正しい音を選択</translation>
    </message>
    <message id="ID_Host_Report_Scripted">
        <source></source>
        <translation>機器はシミュレーションで、このパソコンのものではありません。</translation>
    </message>
    <message id="ID_Host_Report_Summary">
        <source></source>
        <translation>概要</translation>
    </message>
    <message id="ID_Host_Report_System">
        <source></source>
        <translation>パソコンとアカウント</translation>
    </message>
    <message id="ID_Host_Report_Time">
        <source></source>
        <translation>日時</translation>
    </message>
    <message id="ID_Host_Report_Title">
        <source></source>
        <translation>システムチェックのレポート</translation>
    </message>
    <message id="ID_Host_Serve_Answering">
        <source></source>
        <translation>UDP ポート %1 で応答しています。ほかのパソコンからは --server stun:HOST:%1 でここまでの経路を測定できます</translation>
    </message>
    <message id="ID_Host_Serve_NoPort">
        <source></source>
        <translation>UDP ポート %1 で応答できません：%2。--port で別のポートを選んでください</translation>
    </message>
    <message id="ID_Host_Serve_NotBuilt">
        <source></source>
        <translation>serve には、実機ありでビルドしたプログラムが必要です（ENVCHECK_DEVICES）</translation>
    </message>
    <message id="ID_Host_State_Absent">
        <source></source>
        <translation>未接続</translation>
    </message>
    <message id="ID_Host_State_Busy">
        <source></source>
        <translation>使用中</translation>
    </message>
    <message id="ID_Host_State_Denied">
        <source></source>
        <translation>使用を拒否</translation>
    </message>
    <message id="ID_Host_State_Failed">
        <source></source>
        <translation>故障</translation>
    </message>
    <message id="ID_Host_State_Hung">
        <source></source>
        <translation>応答なし</translation>
    </message>
    <message id="ID_Host_State_Off">
        <source></source>
        <translation>オフ</translation>
    </message>
    <message id="ID_Host_State_Ready">
        <source></source>
        <translation>準備完了</translation>
    </message>
    <message id="ID_Host_State_Silent">
        <source></source>
        <translation>信号なし</translation>
    </message>
    <message id="ID_Host_State_Working">
        <source></source>
        <translation>正常</translation>
    </message>
    <message id="ID_Host_Takes_Ending">
        <source></source>
        <translation>%1 で終わる名前、または標準出力を表す -</translation>
    </message>
    <message id="ID_Host_Takes_FileEnding">
        <source></source>
        <translation>%1 で終わるファイル名</translation>
    </message>
    <message id="ID_Host_Takes_Number">
        <source></source>
        <translation>%1 から %2 までの数</translation>
    </message>
    <message id="ID_Host_Takes_OneOf">
        <source></source>
        <translation>次のいずれか：%1</translation>
    </message>
    <message id="ID_Host_Takes_Server">
        <source></source>
        <translation>HOST または HOST:PORT（先頭に「stun:」を付けてもよい。例：stun:stun.example.org:3478）</translation>
    </message>
    <message id="ID_Host_Takes_WebAddress">
        <source></source>
        <translation>http または https のアドレス</translation>
    </message>
    <message id="ID_Host_Token_NoToken">
        <source></source>
        <translation>%1：トークンではありません。英数字と - . _ ~ + /（末尾に =）からなる 1 行にしてください</translation>
    </message>
    <message id="ID_Host_Token_NotEncrypted">
        <source></source>
        <translation>%1：トークンは https でのみ送信します。https のアドレスにするか、トークンを外してください</translation>
    </message>
    <message id="ID_Host_Token_NotRead">
        <source></source>
        <translation>%1 を読み込めません：%2。レポートサーバーのトークンのファイルを指定してください</translation>
    </message>
    <message id="ID_Host_Token_Open">
        <source></source>
        <translation>%1 にはトークンがあり、すべてのユーザーが読み書きできます。次のように変更してください：chmod o= %1</translation>
    </message>
    <message id="ID_Host_Tour_Done">
        <source></source>
        <translation>画像 %1 枚を %2 に保存しました。index.html ですべて見られます。</translation>
    </message>
    <message id="ID_Host_Tour_NoFolder">
        <source></source>
        <translation>--tour %1：このフォルダーを作成できません。別のフォルダーを指定してください</translation>
    </message>
    <message id="ID_Host_Tour_NotWritten">
        <source></source>
        <translation>%1：%2。別のフォルダーを指定してください</translation>
    </message>
    <message id="ID_Host_Upload_Kept">
        <source></source>
        <translation>レポートは %1 に届きませんでした：%2。保存されており、次回の実行で再送信します。</translation>
    </message>
    <message id="ID_Host_Upload_NoAnswer">
        <source></source>
        <translation>時間内に応答がありません</translation>
    </message>
    <message id="ID_Host_Upload_Refused">
        <source></source>
        <translation>%1 はレポートを受け付けません：%2。再送信しません。</translation>
    </message>
    <message id="ID_Host_Upload_Sending">
        <source></source>
        <translation>レポートを %1 に送信しています…</translation>
    </message>
    <message id="ID_Host_Upload_WrongToken">
        <source></source>
        <translation>トークンがないか、正しくありません（HTTP %1）</translation>
    </message>
    <message id="ID_Host_Usage_EmptyName">
        <source></source>
        <translation>--%1 には空でない名前が必要です</translation>
    </message>
    <message id="ID_Host_Usage_ExtraArgument">
        <source></source>
        <translation>引数「%1」は余分です。--help を参照してください</translation>
    </message>
    <message id="ID_Host_Usage_LeaveOneOut">
        <source></source>
        <translation>%1 は %2 と一緒に使えません。どちらかを外してください</translation>
    </message>
    <message id="ID_Host_Usage_Needs">
        <source></source>
        <translation>--%1 には --%2 が必要です。追加するか、--%1 を外してください</translation>
    </message>
    <message id="ID_Host_Usage_OtherCommand">
        <source></source>
        <translation>--%1 は %2 では使えません。--help を参照してください</translation>
    </message>
    <message id="ID_Host_Usage_SamePlace">
        <source></source>
        <translation>--%1 と --%2 の書き込み先が同じです（%3）。別々の場所を指定してください</translation>
    </message>
    <message id="ID_Host_Usage_SeeHelp">
        <source></source>
        <translation>%1 --help を参照してください。</translation>
    </message>
    <message id="ID_Host_Usage_Takes">
        <source></source>
        <translation>--%1 %2：指定できるのは %3</translation>
    </message>
    <message id="ID_Host_Usage_TheCheck">
        <source></source>
        <translation>チェック</translation>
    </message>
    <message id="ID_Host_Usage_UnknownCommand">
        <source></source>
        <translation>不明なコマンド「%1」。--help を参照してください</translation>
    </message>
    <message id="ID_Host_Verdict_Faulty">
        <source></source>
        <translation>対処が必要</translation>
    </message>
    <message id="ID_Host_Verdict_Heard">
        <source></source>
        <translation>聞こえた</translation>
    </message>
    <message id="ID_Host_Verdict_NotHeard">
        <source></source>
        <translation>聞こえない</translation>
    </message>
    <message id="ID_Host_Verdict_NotTried">
        <source></source>
        <translation>未実行</translation>
    </message>
    <message id="ID_Host_Verdict_Unmeasured">
        <source></source>
        <translation>未測定</translation>
    </message>
    <message id="ID_Host_Verdict_Works">
        <source></source>
        <translation>動作しています</translation>
    </message>
    <message id="ID_Host_Yes">
        <source></source>
        <translation>はい</translation>
    </message>
    <message id="ID_Kestrel_SystemTesting">
        <source></source>
        <translation>システムチェック</translation>
    </message>
    <message id="ID_MessageBox_Critical">
        <source></source>
        <translation>エラー</translation>
    </message>
    <message id="ID_MessageBox_Information">
        <source></source>
        <translation>情報</translation>
    </message>
    <message id="ID_MessageBox_Question">
        <source></source>
        <translation>確認</translation>
    </message>
    <message id="ID_MessageBox_Warning">
        <source></source>
        <translation>警告</translation>
    </message>
    <message id="ID_Microphone">
        <source></source>
        <translation>マイク：</translation>
    </message>
    <message id="ID_MicrophonePage_2">
        <source></source>
        <translation>2. スイッチやキーでマイクのミュートを解除してください。</translation>
    </message>
    <message id="ID_MicrophonePage_3">
        <source></source>
        <translation>3. 音量を上げ、マイクに近づいて話してください。</translation>
    </message>
    <message id="ID_MicrophonePage_4">
        <source></source>
        <translation>4. システムのプライバシー設定でマイクを許可してください。</translation>
    </message>
    <message id="ID_MicrophonePage_Again">
        <source></source>
        <translation>もう一度</translation>
    </message>
    <message id="ID_MicrophonePage_CanHearOrSee">
        <source></source>
        <translation>はい、確認できました</translation>
    </message>
    <message id="ID_MicrophonePage_CanNotHearOrSee">
        <source></source>
        <translation>確認できません</translation>
    </message>
    <message id="ID_MicrophonePage_ChoseNo">
        <source></source>
        <translation>声かバーの動きを確認できません</translation>
    </message>
    <message id="ID_MicrophonePage_ClickHere">
        <source></source>
        <translation>声が聞こえない、バーが動かないときはこちら</translation>
    </message>
    <message id="ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable">
        <source></source>
        <translation>マイクがオフです。ここで選ぶか、有効にしてください。</translation>
    </message>
    <message id="ID_MicrophonePage_MayNoisy">
        <source></source>
        <translation>100 を超えると雑音が入ることがあります。</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneDisabled">
        <source></source>
        <translation>マイクがオフか無効です</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneTest">
        <source></source>
        <translation>「録音」を押し、声を出して 1 から 10 まで数えてください。自分の声が聞こえ、緑のバーが動くか確認してください。</translation>
    </message>
    <message id="ID_MicrophonePage_NoMicrophoneWasDetected">
        <source></source>
        <translation>マイクが見つかりません</translation>
    </message>
    <message id="ID_MicrophonePage_NoVoiceWasRecorded">
        <source></source>
        <translation>マイクに音が入っていません</translation>
    </message>
    <message id="ID_MicrophonePage_OfS">
        <source></source>
        <translation>%1 秒</translation>
    </message>
    <message id="ID_MicrophonePage_Recording">
        <source></source>
        <translation>録音中</translation>
    </message>
    <message id="ID_Microphone_Check">
        <source></source>
        <translation>マイク</translation>
    </message>
    <message id="ID_NetworkPage_1">
        <source></source>
        <translation>1. Wi-Fi ルーターに近づくか、LAN ケーブルを使ってください。</translation>
    </message>
    <message id="ID_NetworkPage_2">
        <source></source>
        <translation>2. ほかの機器も含め、ダウンロードや動画を止めてください。</translation>
    </message>
    <message id="ID_NetworkPage_3">
        <source></source>
        <translation>3. VPN やプロキシを切るか、ルーターを再起動してください。</translation>
    </message>
    <message id="ID_NetworkPage_Account">
        <source></source>
        <translation>アカウント：</translation>
    </message>
    <message id="ID_NetworkPage_AvailableCacheSpace">
        <source></source>
        <translation>キャッシュ空き：</translation>
    </message>
    <message id="ID_NetworkPage_CPU">
        <source></source>
        <translation>CPU：</translation>
    </message>
    <message id="ID_NetworkPage_ClickHere">
        <source></source>
        <translation>通信が遅い、または不安定ですか？こちらをクリック</translation>
    </message>
    <message id="ID_NetworkPage_Client">
        <source></source>
        <translation>クライアント：</translation>
    </message>
    <message id="ID_NetworkPage_LostRate">
        <source></source>
        <translation>パケット損失率：</translation>
    </message>
    <message id="ID_NetworkPage_NetworkDelay">
        <source></source>
        <translation>通信遅延：</translation>
    </message>
    <message id="ID_NetworkPage_NetworkSlowOrUnstable">
        <source></source>
        <translation>通信が遅いか不安定です</translation>
    </message>
    <message id="ID_NetworkPage_OS">
        <source></source>
        <translation>OS：</translation>
    </message>
    <message id="ID_NewLogin_Server">
        <source></source>
        <translation>サーバー：</translation>
    </message>
    <message id="ID_Next">
        <source></source>
        <translation>次へ</translation>
    </message>
    <message id="ID_Nickname_NetworkPage">
        <source></source>
        <translation>ニックネーム：</translation>
    </message>
    <message id="ID_OK">
        <source></source>
        <translation>完了</translation>
    </message>
    <message id="ID_Record">
        <source></source>
        <translation>録音</translation>
    </message>
    <message id="ID_Skip">
        <source></source>
        <translation>スキップ</translation>
    </message>
    <message id="ID_Volume">
        <source></source>
        <translation>音量：</translation>
    </message>
    <message id="ID_WelcomePage_StartTest">
        <source></source>
        <translation>チェックを開始</translation>
    </message>
    <message id="ID_WelcomePage_Welcome">
        <source></source>
        <translation>オンライン教室へようこそ</translation>
    </message>
    <message id="ID_hardwaremgrinterface_NoSpeakerFound">
        <source></source>
        <translation>スピーカーが見つかりません</translation>
    </message>
    <message id="ID_lumcamera_NoWebcamFound">
        <source></source>
        <translation>カメラが見つかりません</translation>
    </message>
    <message id="ID_Host_Reason_NoServer">
        <source></source>
        <translation>サーバー未設定</translation>
    </message>
    <message id="ID_Host_Reason_NoSuchHost">
        <source></source>
        <translation>サーバー名が見つかりません</translation>
    </message>
    <message id="ID_Host_Remedy">
        <source></source>
        <translation>対処方法</translation>
    </message>
    <message id="ID_Host_Remedy_NoServer">
        <source></source>
        <translation>サーバーが設定されていないためこのパソコンだけを測定しました。学校にサーバー名を確認し、--server または設定ファイルで指定してください。</translation>
    </message>
    <message id="ID_Host_Remedy_NoAnswer">
        <source></source>
        <translation>サーバーが応答しませんでした。ネットワークに接続されているか、ファイアウォールが UDP を遮断していないか確認してください。</translation>
    </message>
    <message id="ID_Host_Remedy_NoSuchHost">
        <source></source>
        <translation>サーバー名が見つかりません。名前のつづりとネットワーク接続を確認してください。</translation>
    </message>
    <message id="ID_Host_Remedy_Slow">
        <source></source>
        <translation>接続が遅くなっています。LAN ケーブルを使うか Wi-Fi ルーターに近づき、ダウンロードやほかの通話を止めてください。</translation>
    </message>
    <message id="ID_Host_Remedy_Lossy">
        <source></source>
        <translation>途中で失われるデータが多すぎます。LAN ケーブルを使うか、Wi-Fi ルーターに近づいてください。</translation>
    </message>
    <message id="ID_Host_Remedy_LeftTooSoon">
        <source></source>
        <translation>測定の前に次へ進みました。数値が表示されるまでお待ちください。</translation>
    </message>
    <message id="ID_Host_Remedy_Absent">
        <source></source>
        <translation>機器が見つかりません。接続するか電源を入れて、もう一度確認してください。</translation>
    </message>
    <message id="ID_Host_Remedy_Off">
        <source></source>
        <translation>一覧で機器がオフになっています。一覧から選んでください。</translation>
    </message>
    <message id="ID_Host_Remedy_Starting">
        <source></source>
        <translation>機器の準備中でした。もう少し待ってから回答してください。</translation>
    </message>
    <message id="ID_Host_Remedy_Busy">
        <source></source>
        <translation>別のプログラムが機器を使用中です。そのプログラムを終了して、もう一度確認してください。</translation>
    </message>
    <message id="ID_Host_Remedy_Denied">
        <source></source>
        <translation>システムが機器の使用を許可していません。プライバシー設定で許可してください。</translation>
    </message>
    <message id="ID_Host_Remedy_Hung">
        <source></source>
        <translation>機器が応答しませんでした。抜き差しするか、パソコンを再起動してください。</translation>
    </message>
    <message id="ID_Host_Remedy_Stalled">
        <source></source>
        <translation>カメラから映像が届きませんでした。抜き差しするか、別のカメラを選んでください。</translation>
    </message>
    <message id="ID_Host_Remedy_Black">
        <source></source>
        <translation>映像が真っ黒でした。レンズカバーを開け、照明をつけてください。</translation>
    </message>
    <message id="ID_Host_Remedy_Frozen">
        <source></source>
        <translation>映像が動きませんでした。カメラを抜き差ししてください。</translation>
    </message>
    <message id="ID_Host_Remedy_Unplugged">
        <source></source>
        <translation>確認中に機器が外れました。接続し直し、ケーブルを確認してください。</translation>
    </message>
    <message id="ID_Host_Remedy_NotBuilt">
        <source></source>
        <translation>このプログラムは、このシステムではこの種類の機器を使えないため、別のプログラムでお試しください。</translation>
    </message>
    <message id="ID_Host_Remedy_ServerLost">
        <source></source>
        <translation>システムの映像・音声サービスが停止しました。サインインし直すか、パソコンを再起動してください。</translation>
    </message>
    <message id="ID_Host_Remedy_Failed">
        <source></source>
        <translation>機器に障害が起きました。接続し直すか、別の機器を試してください。</translation>
    </message>
    <message id="ID_Host_Remedy_Unreadable">
        <source></source>
        <translation>カメラがここで表示できる形式の映像を送っていません。別のカメラを選ぶか、カメラの設定で別の形式を選んでください。</translation>
    </message>
    <message id="ID_Host_Remedy_Silent">
        <source></source>
        <translation>マイクで何も録音できませんでした。近づいて話し、マイクのスイッチを確認するか、一覧から別のマイクを選んでください。</translation>
    </message>
    <message id="ID_Host_Remedy_Muted">
        <source></source>
        <translation>機器がミュートになっています。ミュートを解除してください。</translation>
    </message>
    <message id="ID_Host_Remedy_VolumeZero">
        <source></source>
        <translation>音量が 0 です。音量を上げてください。</translation>
    </message>
    <message id="ID_Host_Remedy_WrongSound">
        <source></source>
        <translation>再生した音と違う音が選ばれました。音量を上げて、もう一度聞いてください。</translation>
    </message>
    <message id="ID_Host_Remedy_NotSeen">
        <source></source>
        <translation>カメラの映像は届いていましたが、ご自分が見えませんでした。どのカメラが選ばれているか確認してください。</translation>
    </message>
    <message id="ID_Host_Remedy_NotHeard">
        <source></source>
        <translation>音は再生されましたが、聞こえませんでした。音量を上げ、どのスピーカーが選ばれているか確認してください。</translation>
    </message>
    <message id="ID_Host_Remedy_SelfNotHeard">
        <source></source>
        <translation>マイクは録音しましたが、ご自分の声が聞こえませんでした。音量を上げ、どのスピーカーが選ばれているか確認してください。</translation>
    </message>
    <message id="ID_Host_Window_Title">
        <source></source>
        <translation>確認の結果</translation>
    </message>
    <message id="ID_Host_Window_Copy">
        <source></source>
        <translation>コピー</translation>
    </message>
    <message id="ID_Host_Window_Save">
        <source></source>
        <translation>保存…</translation>
    </message>
    <message id="ID_Host_Window_Open">
        <source></source>
        <translation>レポートを開く</translation>
    </message>
    <message id="ID_Host_Window_Close">
        <source></source>
        <translation>閉じる</translation>
    </message>
    <message id="ID_Host_Window_Copied">
        <source></source>
        <translation>レポートをコピーしました。このウィンドウを閉じる前に貼り付けてください。</translation>
    </message>
    <message id="ID_Host_Window_Saved">
        <source></source>
        <translation>レポートを保存しました: %1</translation>
    </message>
    <message id="ID_Host_Window_NotWritten">
        <source></source>
        <translation>レポートを %1 に書き込めません。別の場所を選んでください。</translation>
    </message>
    <message id="ID_Host_Window_NotOpened">
        <source></source>
        <translation>レポートを開けるプログラムがありません。場所: %1</translation>
    </message>
</context>
</TS>
