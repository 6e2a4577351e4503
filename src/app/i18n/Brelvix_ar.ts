<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>MCsMainWindow</name>
    <message>
        <source>Orvel Scheduler Manager</source>
        <translation>Orvel Scheduler Manager</translation>
    </message>
    <message>
        <source>Note: To run the program, sign in to your Windows account and make sure your PC is set not to lock automatically.</source>
        <translation>ملاحظة: لتشغيل البرنامج، يُرجى تسجيل الدخول إلى حساب Windows والتأكد من ضبط الكمبيوتر على عدم القفل تلقائيًا.</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>المجموعات</translation>
    </message>
    <message>
        <source>Task: </source>
        <translation>المهمة: </translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>التصفية:</translation>
    </message>
    <message>
        <source>Tasks: 0</source>
        <translation>المهام: 0</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Next Run</source>
        <translation>التشغيل التالي</translation>
    </message>
    <message>
        <source>Last Run Status</source>
        <translation>حالة آخر تشغيل</translation>
    </message>
    <message>
        <source>Activity Log:</source>
        <translation>سجل النشاط:</translation>
    </message>
</context>
<context>
    <name>MCsTaskDialog</name>
    <message>
        <source>Task</source>
        <translation>المهمة</translation>
    </message>
    <message>
        <source>Task Status : </source>
        <translation>حالة المهمة: </translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ممكّنة</translation>
    </message>
    <message>
        <source>📋 Basic Information</source>
        <translation>📋 المعلومات الأساسية</translation>
    </message>
    <message>
        <source>Task Name (*):</source>
        <translation>اسم المهمة (*):</translation>
    </message>
    <message>
        <source>Program Name (*):</source>
        <translation>اسم البرنامج (*):</translation>
    </message>
    <message>
        <source>Target Program (*):</source>
        <translation>البرنامج المستهدف (*):</translation>
    </message>
    <message>
        <source>Task Type (*):</source>
        <translation>نوع المهمة (*):</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>المجموعة:</translation>
    </message>
    <message>
        <source>💾 Output Settings</source>
        <translation>💾 إعدادات الإخراج</translation>
    </message>
    <message>
        <source>Use Default Output</source>
        <translation>استخدام الإخراج الافتراضي</translation>
    </message>
    <message>
        <source>Custom Output</source>
        <translation>إخراج مخصص</translation>
    </message>
    <message>
        <source>Custom Folder:</source>
        <translation>المجلد المخصص:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>استعراض...</translation>
    </message>
    <message>
        <source>File Name Pattern:</source>
        <translation>نمط اسم الملف:</translation>
    </message>
    <message>
        <source>[YYYY-MM-DD][hh-mm-ss]_[TaskName]</source>
        <translation>[YYYY-MM-DD][hh-mm-ss]_[TaskName]</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>🚀 Action Before Auto Start</source>
        <translation>🚀 الإجراء قبل البدء التلقائي</translation>
    </message>
    <message>
        <source>Run Program:</source>
        <translation>تشغيل برنامج:</translation>
    </message>
    <message>
        <source>Open URL:</source>
        <translation>فتح عنوان URL:</translation>
    </message>
    <message>
        <source>e.g., https://www.example.com</source>
        <translation>مثال: https://www.example.com</translation>
    </message>
    <message>
        <source>After completing the above steps, wait for a while for the data or page to load completely :</source>
        <translation>بعد إكمال الخطوات أعلاه، يتم الانتظار قليلًا حتى يكتمل تحميل البيانات أو الصفحة:</translation>
    </message>
    <message>
        <source>Wait for :</source>
        <translation>مدة الانتظار:</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> ث</translation>
    </message>
    <message>
        <source>⏰ Start Target Program On</source>
        <translation>⏰ موعد بدء البرنامج المستهدف</translation>
    </message>
    <message>
        <source>📅 Specified Time</source>
        <translation>📅 وقت محدد</translation>
    </message>
    <message>
        <source>🔁 Every Day</source>
        <translation>🔁 كل يوم</translation>
    </message>
    <message>
        <source>📆 Every Week</source>
        <translation>📆 كل أسبوع</translation>
    </message>
    <message>
        <source>🖥️ Monitor App</source>
        <translation>🖥️ مراقبة برنامج</translation>
    </message>
    <message>
        <source>📁 Monitor Folder</source>
        <translation>📁 مراقبة مجلد</translation>
    </message>
    <message>
        <source>Specified Date/Time(*):</source>
        <translation>التاريخ/الوقت المحدد (*):</translation>
    </message>
    <message>
        <source>yyyy-MM-dd HH:mm:ss</source>
        <translation>yyyy-MM-dd HH:mm:ss</translation>
    </message>
    <message>
        <source>Daily Time (HH:MM:SS) *:</source>
        <translation>الوقت اليومي (HH:MM:SS) *:</translation>
    </message>
    <message>
        <source>HH:mm:ss</source>
        <translation>HH:mm:ss</translation>
    </message>
    <message>
        <source>Select Days (*):</source>
        <translation>تحديد الأيام (*):</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>الاثنين</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>الثلاثاء</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>الأربعاء</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>الخميس</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>الجمعة</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>السبت</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>الأحد</translation>
    </message>
    <message>
        <source>Weekly Time (HH:MM:SS) *:</source>
        <translation>الوقت الأسبوعي (HH:MM:SS) *:</translation>
    </message>
    <message>
        <source>Monitor Program (*):</source>
        <translation>البرنامج المراقَب (*):</translation>
    </message>
    <message>
        <source>Monitor Folder (*):</source>
        <translation>المجلد المراقَب (*):</translation>
    </message>
    <message>
        <source>File Extensions (*):</source>
        <translation>امتدادات الملفات (*):</translation>
    </message>
    <message>
        <source>e.g., .mp4,.avi,.mkv</source>
        <translation>مثال: ‎.mp4,.avi,.mkv</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop Condition</source>
        <translation>⏹️ شرط الإيقاف التلقائي</translation>
    </message>
    <message>
        <source>🚫 None</source>
        <translation>🚫 بلا</translation>
    </message>
    <message>
        <source>⏱️ By Duration</source>
        <translation>⏱️ حسب المدة</translation>
    </message>
    <message>
        <source>💾 By File Size</source>
        <translation>💾 حسب حجم الملف</translation>
    </message>
    <message>
        <source>🕐 At Time</source>
        <translation>🕐 في وقت معيّن</translation>
    </message>
    <message>
        <source>Duration (*):</source>
        <translation>المدة (*):</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> د</translation>
    </message>
    <message>
        <source>Task File(s) Size (*):</source>
        <translation>حجم ملفات المهمة (*):</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Stop At Time (*):</source>
        <translation>وقت الإيقاف (*):</translation>
    </message>
    <message>
        <source>🏁 Action After Auto Stop</source>
        <translation>🏁 الإجراء بعد الإيقاف التلقائي</translation>
    </message>
    <message>
        <source>❌ Close Program</source>
        <translation>❌ إغلاق البرنامج</translation>
    </message>
    <message>
        <source>🔌 Shutdown Computer</source>
        <translation>🔌 إيقاف تشغيل الكمبيوتر</translation>
    </message>
    <message>
        <source>🖥️ Display Mode</source>
        <translation>🖥️ وضع العرض</translation>
    </message>
    <message>
        <source>👁️ Show</source>
        <translation>👁️ إظهار</translation>
    </message>
    <message>
        <source>🔽 Minimize</source>
        <translation>🔽 تصغير</translation>
    </message>
    <message>
        <source>🙈 Hide</source>
        <translation>🙈 إخفاء</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>task type</source>
        <translation>نوع المهمة</translation>
    </message>
    <message>
        <source>language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>program name</source>
        <translation>اسم البرنامج</translation>
    </message>
    <message>
        <source>program path</source>
        <translation>مسار البرنامج</translation>
    </message>
    <message>
        <source>Program parameter JSON file not found!</source>
        <translation>لم يُعثر على ملف JSON لمعلمات البرنامج!</translation>
    </message>
    <message>
        <source>Failed to open program parameter JSON file!</source>
        <translation>تعذّر فتح ملف JSON لمعلمات البرنامج!</translation>
    </message>
    <message>
        <source>Program parameter JSON file is empty!</source>
        <translation>ملف JSON لمعلمات البرنامج فارغ!</translation>
    </message>
    <message>
        <source>Missing required arguments: %1</source>
        <translation>وسيطات مطلوبة مفقودة: %1</translation>
    </message>
    <message>
        <source>task type error!</source>
        <translation>نوع المهمة غير صحيح!</translation>
    </message>
    <message>
        <source>All Types</source>
        <translation>كل الأنواع</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsDynamicFormWidget</name>
    <message>
        <source>Audio Source</source>
        <translation>مصدر الصوت</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>معدل بت الصوت</translation>
    </message>
    <message>
        <source>Audio Sample Rate</source>
        <translation>معدل عينات الصوت</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>القنوات</translation>
    </message>
    <message>
        <source>Enable VBR if supported</source>
        <translation>تمكين VBR إذا كان مدعومًا</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>تنسيق الإخراج</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ معلمات البرنامج</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsMainWindow</name>
    <message>
        <source>[INFO] Already connected</source>
        <translation>[INFO] الاتصال قائم بالفعل</translation>
    </message>
    <message>
        <source>[INFO] Connected to scheduler service</source>
        <translation>[INFO] تم الاتصال بخدمة الجدولة</translation>
    </message>
    <message>
        <source>[INFO] Reconnected to scheduler service</source>
        <translation>[INFO] تمت إعادة الاتصال بخدمة الجدولة</translation>
    </message>
    <message>
        <source>[INFO] Disconnected from scheduler service</source>
        <translation>[INFO] تم قطع الاتصال بخدمة الجدولة</translation>
    </message>
    <message>
        <source>[INFO] Not connected</source>
        <translation>[INFO] غير متصل</translation>
    </message>
    <message>
        <source>[ERROR] Failed to connect to scheduler service</source>
        <translation>[ERROR] تعذّر الاتصال بخدمة الجدولة</translation>
    </message>
    <message>
        <source>[ERROR] Connection to scheduler service lost</source>
        <translation>[ERROR] انقطع الاتصال بخدمة الجدولة</translation>
    </message>
    <message>
        <source>[ERROR] Failed to reconnect to scheduler service</source>
        <translation>[ERROR] تعذّرت إعادة الاتصال بخدمة الجدولة</translation>
    </message>
    <message>
        <source>[ERROR] Not connected to scheduler service</source>
        <translation>[ERROR] لا يوجد اتصال بخدمة الجدولة</translation>
    </message>
    <message>
        <source>[INFO] Scheduler service started</source>
        <translation>[INFO] تم بدء خدمة الجدولة</translation>
    </message>
    <message>
        <source>[INFO] Waiting for scheduler service to start</source>
        <translation>[INFO] في انتظار بدء خدمة الجدولة</translation>
    </message>
    <message>
        <source>[ERROR] Failed to start scheduler service</source>
        <translation>[ERROR] تعذّر بدء خدمة الجدولة</translation>
    </message>
    <message>
        <source>[ERROR] Scheduler service is not installed</source>
        <translation>[ERROR] خدمة الجدولة غير مثبّتة</translation>
    </message>
    <message>
        <source>[INFO] Task list refreshed</source>
        <translation>[INFO] تم تحديث قائمة المهام</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh task list</source>
        <translation>[ERROR] تعذّر تحديث قائمة المهام</translation>
    </message>
    <message>
        <source>[INFO] Task created: %1</source>
        <translation>[INFO] تم إنشاء المهمة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create task: %1</source>
        <translation>[ERROR] تعذّر إنشاء المهمة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[INFO] Task updated: %1</source>
        <translation>[INFO] تم تحديث المهمة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update task: %1</source>
        <translation>[ERROR] تعذّر تحديث المهمة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[INFO] Task deleted: %1</source>
        <translation>[INFO] تم حذف المهمة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete task: %1</source>
        <translation>[ERROR] تعذّر حذف المهمة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[INFO] Task enabled: %1</source>
        <translation>[INFO] تم تمكين المهمة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable task: %1</source>
        <translation>[ERROR] تعذّر تمكين المهمة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[INFO] Task disabled: %1</source>
        <translation>[INFO] تم تعطيل المهمة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable task: %1</source>
        <translation>[ERROR] تعذّر تعطيل المهمة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[INFO] Task triggered: %1</source>
        <translation>[INFO] تم تشغيل المهمة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger task: %1</source>
        <translation>[ERROR] تعذّر تشغيل المهمة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[INFO] Task moved to group &apos;%1&apos;</source>
        <translation>[INFO] تم نقل المهمة إلى المجموعة «⁨%1⁩»‏</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move task to group &apos;%1&apos;</source>
        <translation>[ERROR] تعذّر نقل المهمة إلى المجموعة «⁨%1⁩»‏</translation>
    </message>
    <message>
        <source>[INFO] %1 tasks moved to group &apos;%2&apos;</source>
        <translation>[INFO] تم نقل %1 من المهام إلى المجموعة «⁨%2⁩»‏</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move %1 tasks to group &apos;%2&apos;</source>
        <translation>[ERROR] تعذّر نقل %1 من المهام إلى المجموعة «⁨%2⁩»‏</translation>
    </message>
    <message>
        <source>[INFO] Group list refreshed</source>
        <translation>[INFO] تم تحديث قائمة المجموعات</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh group list</source>
        <translation>[ERROR] تعذّر تحديث قائمة المجموعات</translation>
    </message>
    <message>
        <source>[INFO] Group created: %1</source>
        <translation>[INFO] تم إنشاء المجموعة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create group: %1</source>
        <translation>[ERROR] تعذّر إنشاء المجموعة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[INFO] Group updated: %1</source>
        <translation>[INFO] تم تحديث المجموعة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update group: %1</source>
        <translation>[ERROR] تعذّر تحديث المجموعة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[INFO] Group deleted: %1</source>
        <translation>[INFO] تم حذف المجموعة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete group: %1</source>
        <translation>[ERROR] تعذّر حذف المجموعة: ⁨%1⁩‏</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group enabled</source>
        <translation>[INFO] تم تمكين كل مهام المجموعة</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable all tasks in the group</source>
        <translation>[ERROR] تعذّر تمكين كل مهام المجموعة</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group disabled</source>
        <translation>[INFO] تم تعطيل كل مهام المجموعة</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable all tasks in the group</source>
        <translation>[ERROR] تعذّر تعطيل كل مهام المجموعة</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group triggered</source>
        <translation>[INFO] تم تشغيل كل مهام المجموعة</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger all tasks in the group</source>
        <translation>[ERROR] تعذّر تشغيل كل مهام المجموعة</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group deleted</source>
        <translation>[INFO] تم حذف كل مهام المجموعة</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete all tasks in the group</source>
        <translation>[ERROR] تعذّر حذف كل مهام المجموعة</translation>
    </message>
    <message>
        <source>[INFO] Activity log refreshed</source>
        <translation>[INFO] تم تحديث سجل النشاط</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh activity log</source>
        <translation>[ERROR] تعذّر تحديث سجل النشاط</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution started</source>
        <translation>بدأ تنفيذ المهمة «⁨%1⁩»</translation>
    </message>
    <message>
        <source> (run: %1)</source>
        <translation> (التشغيل: ⁨%1⁩)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; completed successfully</source>
        <translation>اكتملت المهمة «⁨%1⁩» بنجاح</translation>
    </message>
    <message>
        <source> (exit: %1)</source>
        <translation> (رمز الخروج: ‎%1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution failed</source>
        <translation>فشل تنفيذ المهمة «⁨%1⁩»</translation>
    </message>
    <message>
        <source> - %1</source>
        <translation> - ⁨%1⁩</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution timed out</source>
        <translation>انتهت مهلة تنفيذ المهمة «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution cancelled</source>
        <translation>أُلغي تنفيذ المهمة «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; created</source>
        <translation>تم إنشاء المجموعة «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; updated</source>
        <translation>تم تحديث المجموعة «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; deleted</source>
        <translation>تم حذف المجموعة «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; created</source>
        <translation>تم إنشاء المهمة «⁨%1⁩»</translation>
    </message>
    <message>
        <source> (schedule: %1)</source>
        <translation> (الجدولة: ⁨%1⁩)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; updated</source>
        <translation>تم تحديث المهمة «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; deleted</source>
        <translation>تم حذف المهمة «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; enabled</source>
        <translation>تم تمكين المهمة «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; disabled</source>
        <translation>تم تعطيل المهمة «⁨%1⁩»</translation>
    </message>
    <message>
        <source>%1 on &apos;%2&apos;</source>
        <translation>الإجراء ⁨%1⁩ على «⁨%2⁩»</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Enable All Tasks</source>
        <translation>تمكين كل المهام</translation>
    </message>
    <message>
        <source>Disable All Tasks</source>
        <translation>تعطيل كل المهام</translation>
    </message>
    <message>
        <source>Trigger All Tasks</source>
        <translation>تشغيل كل المهام</translation>
    </message>
    <message>
        <source>Delete All Tasks</source>
        <translation>حذف كل المهام</translation>
    </message>
    <message>
        <source>Task Runs</source>
        <translation>عمليات تشغيل المهمة</translation>
    </message>
    <message>
        <source>Task runs view not yet implemented.</source>
        <translation>عرض عمليات تشغيل المهمة غير متوفر بعد.</translation>
    </message>
    <message>
        <source>Task Logs</source>
        <translation>سجلات المهمة</translation>
    </message>
    <message>
        <source>Task logs view not yet implemented.</source>
        <translation>عرض سجلات المهمة غير متوفر بعد.</translation>
    </message>
    <message>
        <source>Export Logs</source>
        <translation>تصدير السجلات</translation>
    </message>
    <message>
        <source>Log export not yet implemented.</source>
        <translation>تصدير السجلات غير متوفر بعد.</translation>
    </message>
    <message>
        <source>Not Connected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Cannot refresh audit log because not connected to the service.</source>
        <translation>لا يمكن تحديث سجل النشاط لعدم وجود اتصال بالخدمة.</translation>
    </message>
    <message>
        <source>No Selection</source>
        <translation>لا يوجد تحديد</translation>
    </message>
    <message>
        <source>Please select a task to edit.</source>
        <translation>يُرجى تحديد المهمة المطلوب تحريرها.</translation>
    </message>
    <message>
        <source>Please select a task to delete.</source>
        <translation>يُرجى تحديد المهمة المطلوب حذفها.</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>تأكيد الحذف</translation>
    </message>
    <message>
        <source>Are you sure you want to delete task &apos;%1&apos;?</source>
        <translation>هل تريد بالتأكيد حذف المهمة «⁨%1⁩»؟</translation>
    </message>
    <message>
        <source>Delete Error</source>
        <translation>خطأ في الحذف</translation>
    </message>
    <message>
        <source>Failed to delete task.</source>
        <translation>تعذّر حذف المهمة.</translation>
    </message>
    <message>
        <source>Toggle Error</source>
        <translation>خطأ في تبديل الحالة</translation>
    </message>
    <message>
        <source>Failed to toggle task status.</source>
        <translation>تعذّر تبديل حالة المهمة.</translation>
    </message>
    <message>
        <source>Please select a task to trigger.</source>
        <translation>يُرجى تحديد المهمة المطلوب تشغيلها.</translation>
    </message>
    <message>
        <source>Trigger Error</source>
        <translation>خطأ في التشغيل</translation>
    </message>
    <message>
        <source>Failed to trigger task.</source>
        <translation>تعذّر تشغيل المهمة.</translation>
    </message>
    <message>
        <source>Please select a group to edit.</source>
        <translation>يُرجى تحديد المجموعة المطلوب تحريرها.</translation>
    </message>
    <message>
        <source>Cannot Edit</source>
        <translation>لا يمكن التحرير</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be edited.</source>
        <translation>لا يمكن تحرير المجموعة «بلا مجموعة».</translation>
    </message>
    <message>
        <source>Select Type</source>
        <translation>تحديد النوع</translation>
    </message>
    <message>
        <source>Please select a specific task type from the filter before creating a group.</source>
        <translation>يُرجى تحديد نوع مهمة معيّن من قائمة التصفية قبل إنشاء مجموعة.</translation>
    </message>
    <message>
        <source>Please select a group to delete.</source>
        <translation>يُرجى تحديد المجموعة المطلوب حذفها.</translation>
    </message>
    <message>
        <source>Cannot Delete</source>
        <translation>لا يمكن الحذف</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be deleted.</source>
        <translation>لا يمكن حذف المجموعة «بلا مجموعة».</translation>
    </message>
    <message>
        <source>Are you sure you want to delete group &apos;%1&apos;?
Tasks in this group will be moved to &apos;Ungrouped&apos;.</source>
        <translation>هل تريد بالتأكيد حذف المجموعة «⁨%1⁩»؟
ستُنقل مهام هذه المجموعة إلى «بلا مجموعة».</translation>
    </message>
    <message>
        <source>Failed to delete group.</source>
        <translation>تعذّر حذف المجموعة.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>Failed to enable all tasks in group.</source>
        <translation>تعذّر تمكين كل مهام المجموعة.</translation>
    </message>
    <message>
        <source>Failed to disable all tasks in group.</source>
        <translation>تعذّر تعطيل كل مهام المجموعة.</translation>
    </message>
    <message>
        <source>Failed to trigger all tasks in group.</source>
        <translation>تعذّر تشغيل كل مهام المجموعة.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete all tasks in this group?</source>
        <translation>هل تريد بالتأكيد حذف كل مهام هذه المجموعة؟</translation>
    </message>
    <message>
        <source>Failed to delete all tasks in group.</source>
        <translation>تعذّر حذف كل مهام المجموعة.</translation>
    </message>
    <message>
        <source>Connecting to scheduler service...</source>
        <translation>جارٍ الاتصال بخدمة الجدولة...</translation>
    </message>
    <message>
        <source>Connecting to scheduler service (attempt %1 of %2)...</source>
        <translation>جارٍ الاتصال بخدمة الجدولة (المحاولة %1 من %2)...</translation>
    </message>
    <message>
        <source>Unable to connect to the scheduler service because multiple manager instances are running. Please close the other scheduler managers first.</source>
        <translation>لا يمكن الاتصال بخدمة الجدولة لأن عدة نسخ من مدير الجدولة قيد التشغيل. يُرجى إغلاق النسخ الأخرى أولًا.</translation>
    </message>
    <message>
        <source>connected to deamon failed! (attempt %1 of %2) reason = </source>
        <translation>فشل الاتصال بخدمة الجدولة! (المحاولة %1 من %2) السبب = </translation>
    </message>
    <message>
        <source>[WARN] Initial connection failed, attempting to start service...</source>
        <translation>[WARN] فشل الاتصال الأولي، جارٍ محاولة بدء الخدمة...‏</translation>
    </message>
    <message>
        <source>Scheduler service is installed but failed to start.

Please check system logs or reinstall the service.</source>
        <translation>خدمة الجدولة مثبّتة ولكن تعذّر بدؤها.

يُرجى التحقق من سجلات النظام أو إعادة تثبيت الخدمة.</translation>
    </message>
    <message>
        <source>Scheduler service is not installed.

Please reinstall the service and restart the application.</source>
        <translation>خدمة الجدولة غير مثبّتة.

يُرجى إعادة تثبيت الخدمة ثم إعادة تشغيل التطبيق.</translation>
    </message>
    <message>
        <source>Waiting for service to start...</source>
        <translation>في انتظار بدء الخدمة...</translation>
    </message>
    <message>
        <source>Reconnecting to scheduler service (attempt %1 of %2)...</source>
        <translation>جارٍ إعادة الاتصال بخدمة الجدولة (المحاولة %1 من %2)...</translation>
    </message>
    <message>
        <source>Unable to connect to scheduler service after multiple attempts.

Please ensure the service is running correctly and try again.</source>
        <translation>تعذّر الاتصال بخدمة الجدولة بعد عدة محاولات.

يُرجى التأكد من عمل الخدمة بشكل صحيح ثم إعادة المحاولة.</translation>
    </message>
    <message>
        <source>No Tasks Found</source>
        <translation>لا توجد مهام</translation>
    </message>
    <message>
        <source>No scheduled tasks were found.

Would you like to create one now?</source>
        <translation>لم يُعثر على أي مهام مجدولة.

هل تريد إنشاء مهمة الآن؟</translation>
    </message>
    <message>
        <source>[WARN] Connection lost, attempting to reconnect...</source>
        <translation>[WARN] انقطع الاتصال، جارٍ محاولة إعادة الاتصال...‏</translation>
    </message>
    <message>
        <source>[INFO] Reconnection attempt %1 of %2...</source>
        <translation>[INFO] محاولة إعادة الاتصال %1 من %2...‏</translation>
    </message>
    <message>
        <source>Reconnecting (%1/%2)...</source>
        <translation>جارٍ إعادة الاتصال (%1 من %2)...</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting...
Attempt %1 of %2</source>
        <translation>انقطع الاتصال. جارٍ إعادة الاتصال...
المحاولة %1 من %2</translation>
    </message>
    <message>
        <source>Connection to scheduler service was lost and could not be restored.

The application will now close.</source>
        <translation>انقطع الاتصال بخدمة الجدولة وتعذّرت استعادته.

سيُغلق التطبيق الآن.</translation>
    </message>
    <message>
        <source>Service Error</source>
        <translation>خطأ في الخدمة</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>جارٍ الاتصال</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Connection Lost</source>
        <translation>انقطع الاتصال</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting to scheduler service...</source>
        <translation>انقطع الاتصال. جارٍ إعادة الاتصال بخدمة الجدولة...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Failed to move task to group &apos;%1&apos;.</source>
        <translation>تعذّر نقل المهمة إلى المجموعة «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Failed to move %1 tasks to group &apos;%2&apos;.</source>
        <translation>تعذّر نقل %1 من المهام إلى المجموعة «⁨%2⁩».</translation>
    </message>
    <message>
        <source>Failed to move task to group.</source>
        <translation>تعذّر نقل المهمة إلى المجموعة.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Tasks: %1</source>
        <translation>المهام: %1</translation>
    </message>
    <message>
        <source> (in %1)</source>
        <translation> (في ⁨%1⁩)</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>نجاح</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>فشل</translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>انتهت المهلة</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>قيد التشغيل</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>قيد الانتظار</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>معطّلة</translation>
    </message>
    <message>
        <source>Not scheduled</source>
        <translation>غير مجدولة</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>متأخرة</translation>
    </message>
    <message>
        <source>%1s left</source>
        <translation>بقي %1 ث</translation>
    </message>
    <message>
        <source>%1m %2s left</source>
        <translation>بقي %1 د %2 ث</translation>
    </message>
    <message>
        <source>%1d %2h left</source>
        <translation>بقي %1 ي %2 س</translation>
    </message>
    <message>
        <source>%1h %2m left</source>
        <translation>بقي %1 س %2 د</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>ممكّنة</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskDialog</name>
    <message>
        <source>Failed to load task.</source>
        <translation>تعذّر تحميل المهمة.</translation>
    </message>
    <message>
        <source>Test Task</source>
        <translation>مهمة اختبار</translation>
    </message>
    <message>
        <source>Screen Recorder</source>
        <translation>مسجل الشاشة</translation>
    </message>
    <message>
        <source>Audio Recorder</source>
        <translation>مسجل الصوت</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>مخصص</translation>
    </message>
    <message>
        <source>Create Task</source>
        <translation>إنشاء مهمة</translation>
    </message>
    <message>
        <source>Edit Task</source>
        <translation>تحرير المهمة</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ممكّنة</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>معطّلة</translation>
    </message>
    <message>
        <source>Select Program</source>
        <translation>تحديد البرنامج</translation>
    </message>
    <message>
        <source>Executable Files (*.exe);;All Files (*.*)</source>
        <translation>ملفات تنفيذية ‎(*.exe);;كل الملفات (*.*)</translation>
    </message>
    <message>
        <source>Select Program to Monitor</source>
        <translation>تحديد البرنامج المطلوب مراقبته</translation>
    </message>
    <message>
        <source>Select Folder to Monitor</source>
        <translation>تحديد المجلد المطلوب مراقبته</translation>
    </message>
    <message>
        <source>Select Output Folder</source>
        <translation>تحديد مجلد الإخراج</translation>
    </message>
    <message>
        <source>File Name Pattern Help</source>
        <translation>تعليمات نمط اسم الملف</translation>
    </message>
    <message>
        <source>Available format variables:

[YYYY-MM-DD] - Date (e.g., 2024-03-15)
[hh-mm-ss] - Time (e.g., 14-30-45)
[TaskName] - Task name
[Counter] - Auto-incrementing counter

Example: [YYYY-MM-DD][hh-mm-ss]_[TaskName]
Result: 2024-03-15_14-30-45_MyTask.mp4</source>
        <translation>متغيرات التنسيق المتاحة:

‏[YYYY-MM-DD] - التاريخ (مثال: ‎2024-03-15)
‏[hh-mm-ss] - الوقت (مثال: ‎14-30-45)
‏[TaskName] - اسم المهمة
‏[Counter] - عدّاد يزداد تلقائيًا

مثال: ‎[YYYY-MM-DD][hh-mm-ss]_[TaskName]‎
النتيجة: ‎2024-03-15_14-30-45_MyTask.mp4</translation>
    </message>
    <message>
        <source>Ungrouped</source>
        <translation>بلا مجموعة</translation>
    </message>
    <message>
        <source>Critical Error!</source>
        <translation>خطأ فادح!</translation>
    </message>
    <message>
        <source>Task type mismatch!</source>
        <translation>نوع المهمة غير مطابق!</translation>
    </message>
    <message>
        <source>Task type not accepted!</source>
        <translation>نوع المهمة غير مقبول!</translation>
    </message>
    <message>
        <source>📋 Basic Info</source>
        <translation>📋 معلومات أساسية</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ معلمات البرنامج</translation>
    </message>
    <message>
        <source>💾 Output</source>
        <translation>💾 الإخراج</translation>
    </message>
    <message>
        <source>🚀 Before Start</source>
        <translation>🚀 قبل البدء</translation>
    </message>
    <message>
        <source>⏰ Start Target Program</source>
        <translation>⏰ بدء البرنامج المستهدف</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop</source>
        <translation>⏹️ الإيقاف التلقائي</translation>
    </message>
    <message>
        <source>🏁 After Stop</source>
        <translation>🏁 بعد الإيقاف</translation>
    </message>
    <message>
        <source>🖥️ Display</source>
        <translation>🖥️ العرض</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>خطأ في الاتصال</translation>
    </message>
    <message>
        <source>Not connected to daemon. Please connect first.</source>
        <translation>لا يوجد اتصال بخدمة الجدولة. يُرجى الاتصال أولًا.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>نجاح</translation>
    </message>
    <message>
        <source>Task created successfully.</source>
        <translation>تم إنشاء المهمة بنجاح.</translation>
    </message>
    <message>
        <source>Task updated successfully.</source>
        <translation>تم تحديث المهمة بنجاح.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>Failed to save task. reason : </source>
        <translation>تعذّر حفظ المهمة. السبب: </translation>
    </message>
    <message>
        <source>Task name is required.</source>
        <translation>اسم المهمة مطلوب.</translation>
    </message>
    <message>
        <source>Program name is required.</source>
        <translation>اسم البرنامج مطلوب.</translation>
    </message>
    <message>
        <source>Target program is required.</source>
        <translation>البرنامج المستهدف مطلوب.</translation>
    </message>
    <message>
        <source>Task type is required.</source>
        <translation>نوع المهمة مطلوب.</translation>
    </message>
    <message>
        <source>Specified date/time must be in the future.</source>
        <translation>يجب أن يكون التاريخ/الوقت المحدد في المستقبل.</translation>
    </message>
    <message>
        <source>At least one weekday must be selected for EveryWeek mode.</source>
        <translation>يجب تحديد يوم واحد على الأقل لوضع «كل أسبوع».</translation>
    </message>
    <message>
        <source>Monitor program is required for monitorApp mode.</source>
        <translation>البرنامج المراقَب مطلوب لوضع «مراقبة برنامج».</translation>
    </message>
    <message>
        <source>Monitor folder path is required for monitorFolder mode.</source>
        <translation>مسار المجلد المراقَب مطلوب لوضع «مراقبة مجلد».</translation>
    </message>
    <message>
        <source>File extensions are required for monitorFolder mode.</source>
        <translation>امتدادات الملفات مطلوبة لوضع «مراقبة مجلد».</translation>
    </message>
    <message>
        <source>Stop time must be in the future.</source>
        <translation>يجب أن يكون وقت الإيقاف في المستقبل.</translation>
    </message>
    <message>
        <source>Validation Error</source>
        <translation>خطأ في الإدخال</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskTableWidget</name>
    <message numerus="yes">
        <source>%n task(s)</source>
        <translation>
            <numerusform>%n مهمة</numerusform>
            <numerusform>%n مهمة</numerusform>
            <numerusform>مهمتان (%n)</numerusform>
            <numerusform>%n مهام</numerusform>
            <numerusform>%n مهمة</numerusform>
            <numerusform>%n مهمة</numerusform>
        </translation>
    </message>
</context>
</TS>
