<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>AppHelpWidget</name>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Вперёд</translation>
    </message>
    <message>
        <source>Close help</source>
        <translation>Закрыть справку</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Страница справки</translation>
    </message>
</context>
<context>
    <name>AppMiniMissionControlWidget</name>
    <message>
        <source>Panel</source>
        <translation>Панель</translation>
    </message>
</context>
<context>
    <name>AppMissionControlWidget</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Port: %1</source>
        <translation>Порт: %1</translation>
    </message>
    <message>
        <source>Open mission control</source>
        <translation>Открыть панель управления</translation>
    </message>
    <message>
        <source>Close mission control</source>
        <translation>Закрыть панель управления</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message>
        <source>Close application</source>
        <translation>Закрыть приложение</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Сводка</translation>
    </message>
    <message>
        <source>Application controls</source>
        <translation>Элементы управления приложения</translation>
    </message>
</context>
<context>
    <name>BreadcrumbBar</name>
    <message>
        <source>Path</source>
        <translation>Путь</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Открыть %1</translation>
    </message>
</context>
<context>
    <name>ClientGUIBase</name>
    <message>
        <source>SETUP</source>
        <translation>НАСТРОЙКА</translation>
    </message>
    <message>
        <source>TEST</source>
        <translation>ТЕСТ</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>РЕЗУЛЬТАТ</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>Файлы результатов</translation>
    </message>
    <message>
        <source>Application Selector</source>
        <translation>Выбор приложения</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Приложения</translation>
    </message>
</context>
<context>
    <name>ConflictDialog</name>
    <message>
        <source>Do the same with all that follow</source>
        <translation>Применить ко всем последующим</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Файл существует</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>«%1» уже существует.</translation>
    </message>
    <message>
        <source>There now</source>
        <translation>Существующий</translation>
    </message>
    <message>
        <source>To be copied</source>
        <translation>Копируемый</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Перезаписать</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Оставить оба</translation>
    </message>
    <message>
        <source>Cancel all</source>
        <translation>Отменить все</translation>
    </message>
</context>
<context>
    <name>FcpAppCORBA</name>
    <message>
        <source>the link to %1 was given up</source>
        <translation>соединение с %1 прекращено</translation>
    </message>
</context>
<context>
    <name>FileActionBar</name>
    <message>
        <source>List anew</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Новая папка</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Переместить</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>FileItemDelegate</name>
    <message>
        <source>New name</source>
        <translation>Новое имя</translation>
    </message>
</context>
<context>
    <name>FileListView</name>
    <message>
        <source>Columns</source>
        <translation>Столбцы</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>this is not the name of a file</source>
        <translation>это не имя файла</translation>
    </message>
    <message>
        <source>its name holds bytes that are no text</source>
        <translation>имя содержит байты, не являющиеся текстом</translation>
    </message>
    <message>
        <source>the name is longer than %1 bytes</source>
        <translation>имя длиннее %1 байт</translation>
    </message>
</context>
<context>
    <name>FileOperations</name>
    <message>
        <source>the instrument</source>
        <translatorcomment>Stands for %2 of “Delete %1 from %2?” (FileQuestions): carries the preposition.</translatorcomment>
        <translation>с прибора</translation>
    </message>
    <message>
        <source>this computer</source>
        <translatorcomment>Stands for %2 of “Delete %1 from %2?” (FileQuestions): carries the preposition.</translatorcomment>
        <translation>с этого компьютера</translation>
    </message>
    <message>
        <source>the medium %1</source>
        <translatorcomment>Stands for %2 of “Delete %1 from %2?” (FileQuestions): carries the preposition.</translatorcomment>
        <translation>с носителя %1</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>Не удалось создать здесь папку: возможно, запись запрещена.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be renamed to &quot;%2&quot;: the name may be taken.</source>
        <translation>Не удалось переименовать «%1» в «%2»: возможно, имя уже занято.</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;.</source>
        <translation>Переименовано в «%1».</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>What is deleted can&apos;t be brought back.</source>
        <translation>Удалённое нельзя восстановить.</translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation>Удаление…</translation>
    </message>
    <message>
        <source>Deleted.</source>
        <translation>Удаление завершено.</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>объекты (%1)</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to move %1.</source>
        <translation>Откройте папку и нажмите «Вставить», чтобы переместить %1.</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to copy %1.</source>
        <translation>Откройте папку и нажмите «Вставить», чтобы скопировать %1.</translation>
    </message>
    <message>
        <source>Moving…</source>
        <translation>Перемещение…</translation>
    </message>
    <message>
        <source>Moved.</source>
        <translation>Перемещение завершено.</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>Копирование…</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Копирование завершено.</translation>
    </message>
    <message>
        <source>Making a folder…</source>
        <translation>Создание папки…</translation>
    </message>
    <message>
        <source>Renaming…</source>
        <translation>Переименование…</translation>
    </message>
</context>
<context>
    <name>FilePane</name>
    <message>
        <source>Up</source>
        <translation>На уровень выше</translation>
    </message>
    <message>
        <source>Search in this folder</source>
        <translation>Поиск в этой папке</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Types of files</source>
        <translation>Типы файлов</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>The instrument can&apos;t be reached.</source>
        <translation>Прибор недоступен.</translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation>Носитель %1 извлечён.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>Папка «%1» не существует.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is gone.</source>
        <translation>Папка «%1» больше не существует.</translation>
    </message>
    <message>
        <source>This folder can&apos;t be listed.</source>
        <translation>Не удалось получить содержимое этой папки.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Загрузка…</translation>
    </message>
    <message>
        <source>Nothing here fits the search.</source>
        <translation>Ничего не найдено.</translation>
    </message>
    <message>
        <source>This folder is empty.</source>
        <translation>Эта папка пуста.</translation>
    </message>
    <message>
        <source>The link to the instrument is lost</source>
        <translation>Связь с прибором потеряна</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>This entry&apos;s name can&apos;t be used.</source>
        <translation>Имя этого объекта нельзя использовать.</translation>
    </message>
    <message>
        <source>Only %1</source>
        <translation>Только %1</translation>
    </message>
    <message>
        <source>List only files of %1</source>
        <translation>Показывать только файлы %1</translation>
    </message>
    <message>
        <source>There are no files of this type here.</source>
        <translation>Здесь нет файлов этого типа.</translation>
    </message>
</context>
<context>
    <name>FilePaths</name>
    <message>
        <source>A name is needed.</source>
        <translation>Требуется имя.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be a name.</source>
        <translation>«%1» не может быть именем.</translation>
    </message>
    <message>
        <source>A name can&apos;t have a &quot;/&quot;.</source>
        <translation>Имя не может содержать «/».</translation>
    </message>
    <message>
        <source>A name can&apos;t have the character %1.</source>
        <translation>Имя не может содержать символ %1.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Это имя слишком длинное.</translation>
    </message>
</context>
<context>
    <name>FileQuestions</name>
    <message>
        <source>1 file</source>
        <translation>1 файл</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 файл</numerusform>
            <numerusform>%1 файла</numerusform>
            <numerusform>%1 файлов</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translatorcomment>Accusative: stands for %1 of “Delete %1 from %2?”.</translatorcomment>
        <translation>1 папку</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 папку</numerusform>
            <numerusform>%1 папки</numerusform>
            <numerusform>%1 папок</numerusform>
        </translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Not everything was copied</source>
        <translation>Скопировано не всё</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Отменено</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 и %2</translation>
    </message>
    <message>
        <source>Delete %1 from %2?</source>
        <translation>Удалить %2 %1?</translation>
    </message>
    <message>
        <source>Delete %1 with everything in it from %2?</source>
        <translation>Удалить %2 %1 со всем содержимым?</translation>
    </message>
    <message>
        <source>Delete %1 with everything in them from %2?</source>
        <translation>Удалить %2 %1 со всем содержимым?</translation>
    </message>
    <message>
        <source>%1 copied (%2)</source>
        <translation>скопировано: %1 — %2</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>пропущено: %1</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>с ошибками: %1</translation>
    </message>
    <message>
        <source>%1 not tried</source>
        <translation>не обработано: %1</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>осталось %1 с</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>осталось %1 мин</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>осталось %1 ч %2 мин</translation>
    </message>
</context>
<context>
    <name>FileTransfer</name>
    <message>
        <source>it is no file any more</source>
        <translation>это больше не файл</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>не существует</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>был изменён во время чтения</translation>
    </message>
    <message>
        <source>%1 bytes came of a file of %2 bytes</source>
        <translation>получено байт: %1, размер файла в байтах: %2</translation>
    </message>
    <message>
        <source>there is no room left: %1</source>
        <translation>недостаточно места: %1</translation>
    </message>
    <message>
        <source>there is no link to the instrument</source>
        <translation>нет связи с прибором</translation>
    </message>
    <message>
        <source>the instrument cannot list %1</source>
        <translation>прибор не может получить содержимое %1</translation>
    </message>
    <message>
        <source>%1; it is unknown whether the instrument still did its last step</source>
        <translation>%1; неизвестно, выполнил ли прибор последний шаг</translation>
    </message>
    <message>
        <source>%1 (the instrument answers %2)</source>
        <translation>%1 (ответ прибора: %2)</translation>
    </message>
    <message>
        <source>the instrument cannot give a file of %1 the name %2</source>
        <translation>прибор не может присвоить файлу в %1 имя %2</translation>
    </message>
    <message>
        <source>the instrument cannot remove %1</source>
        <translation>прибор не может удалить %1</translation>
    </message>
    <message>
        <source>the instrument cannot make a folder in %1</source>
        <translation>прибор не может создать папку в %1</translation>
    </message>
    <message>
        <source>this is not the path of a file</source>
        <translation>это не путь к файлу</translation>
    </message>
    <message>
        <source>it cannot be carried into itself</source>
        <translation>нельзя передать внутрь самого себя</translation>
    </message>
    <message>
        <source>the folders are nested too deeply</source>
        <translation>слишком большая вложенность папок</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>неизвестное исключение</translation>
    </message>
    <message>
        <source>the folder %1 is not there</source>
        <translation>папка %1 не существует</translation>
    </message>
    <message>
        <source>%1 are needed, and %2 are free in %3</source>
        <translation>требуется %1, свободно %2 в %3</translation>
    </message>
    <message>
        <source>a file at the target has the name of this folder</source>
        <translation>в месте назначения есть файл с именем этой папки</translation>
    </message>
    <message>
        <source>%1; what may be left as %2 is removed when the file is carried again</source>
        <translation>%1; возможный остаток %2 будет удалён при повторной передаче файла</translation>
    </message>
    <message>
        <source>a folder at the target has the name of this file</source>
        <translation>в месте назначения есть папка с именем этого файла</translation>
    </message>
</context>
<context>
    <name>FwButtonTabWidget</name>
    <message>
        <source>Previous tabs</source>
        <translation>Предыдущие вкладки</translation>
    </message>
    <message>
        <source>More tabs</source>
        <translation>Другие вкладки</translation>
    </message>
</context>
<context>
    <name>FwLoadSaveDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Прибор</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Компьютер</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>Transfer files</source>
        <translation>Передача файлов</translation>
    </message>
    <message>
        <source>Nothing can be saved here now.</source>
        <translation>Сейчас сохранить сюда нельзя.</translation>
    </message>
    <message>
        <source>There is a folder with the name &quot;%1&quot;.</source>
        <translation>Папка с именем «%1» уже существует.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already. Overwrite it?</source>
        <translation>«%1» уже существует. Перезаписать?</translation>
    </message>
    <message>
        <source>What it holds now will be lost.</source>
        <translation>Текущее содержимое будет потеряно.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Перезаписать</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>Передача</translation>
    </message>
    <message>
        <source>Files are being copied. Cancel that and close?</source>
        <translation>Идёт копирование файлов. Отменить его и закрыть?</translation>
    </message>
    <message>
        <source>What has been copied so far stays.</source>
        <translation>Уже скопированное сохранится.</translation>
    </message>
    <message>
        <source>Cancel and close</source>
        <translation>Отменить и закрыть</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Продолжить</translation>
    </message>
</context>
<context>
    <name>FwLogView</name>
    <message>
        <source>All levels</source>
        <translation>Все уровни</translation>
    </message>
    <message>
        <source>From info</source>
        <translation>Информация и выше</translation>
    </message>
    <message>
        <source>From warning</source>
        <translation>Предупреждения и выше</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Ошибки</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Все категории</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Уровень</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Категория</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Возобновить</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
</context>
<context>
    <name>FwNavigationButton</name>
    <message>
        <source>Previous window</source>
        <translation>Предыдущее окно</translation>
    </message>
    <message>
        <source>Next window</source>
        <translation>Следующее окно</translation>
    </message>
</context>
<context>
    <name>HelpBrowser</name>
    <message>
        <source>Only pages on this instrument can be shown here.</source>
        <translation>Здесь можно показать только страницы, хранящиеся на этом приборе.</translation>
    </message>
    <message>
        <source>The help page is missing, or can not be read.</source>
        <translation>Страница справки отсутствует или не может быть прочитана.</translation>
    </message>
    <message>
        <source>This page can not be shown</source>
        <translation>Не удалось показать эту страницу</translation>
    </message>
</context>
<context>
    <name>LampSign</name>
    <message>
        <source>On</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>Indicator: %1</source>
        <translation>Индикатор: %1</translation>
    </message>
</context>
<context>
    <name>LocalFileCopy</name>
    <message>
        <source>it is no file any more</source>
        <translation>это больше не файл</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>не удаётся прочитать: %1</translation>
    </message>
    <message>
        <source>it cannot be written: %1</source>
        <translation>не удаётся записать: %1</translation>
    </message>
</context>
<context>
    <name>LocalHelperThread</name>
    <message>
        <source>Cancelled.</source>
        <translation>Отменено.</translation>
    </message>
    <message>
        <source>Files are being copied, moved or deleted already.</source>
        <translation>Уже идёт копирование, перемещение или удаление файлов.</translation>
    </message>
    <message>
        <source>There is an entry of that name already.</source>
        <translation>Объект с таким именем уже существует.</translation>
    </message>
    <message>
        <source>This can&apos;t be done with this folder, or not at this place.</source>
        <translation>Это действие недоступно для этой папки или в этом месте.</translation>
    </message>
    <message>
        <source>This is neither a file nor a folder nor a link, and can&apos;t be copied.</source>
        <translation>Это не файл, не папка и не ссылка, поэтому скопировать нельзя.</translation>
    </message>
    <message>
        <source>It is in use.</source>
        <translation>Объект используется.</translation>
    </message>
    <message>
        <source>Nothing may be changed here.</source>
        <translation>Здесь ничего нельзя изменять.</translation>
    </message>
</context>
<context>
    <name>LocalSource</name>
    <message>
        <source>it is not there</source>
        <translation>не существует</translation>
    </message>
    <message>
        <source>this folder cannot be read</source>
        <translation>не удалось прочитать эту папку</translation>
    </message>
</context>
<context>
    <name>LocalTarget</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made: %2</source>
        <translation>не удалось создать папку %1: %2</translation>
    </message>
    <message>
        <source>%1 was changed while it was written</source>
        <translation>файл %1 был изменён во время записи</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>не удалось записать %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>не удалось удалить %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be flushed to the medium: %2</source>
        <translation>не удалось завершить запись %1 на носитель: %2</translation>
    </message>
</context>
<context>
    <name>NameField</name>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
</context>
<context>
    <name>NumericField</name>
    <message>
        <source>Whole numbers only</source>
        <translation>Только целые числа</translation>
    </message>
    <message>
        <source>No negative values</source>
        <translation>Без отрицательных значений</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no digit here</source>
        <translation>«%1» здесь не является цифрой</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Введите число</translation>
    </message>
    <message>
        <source>Digits after the point: %1 at most</source>
        <translation>Знаков после точки: не более %1</translation>
    </message>
    <message>
        <source>Not a number in the range</source>
        <translation>Число вне диапазона</translation>
    </message>
    <message>
        <source>The largest value is %1</source>
        <translation>Наибольшее значение: %1</translation>
    </message>
    <message>
        <source>The smallest value is %1</source>
        <translation>Наименьшее значение: %1</translation>
    </message>
</context>
<context>
    <name>NumpadKeys</name>
    <message>
        <source>Without a prefix</source>
        <translation>Без приставки</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Сброс</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Курсор влево</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Курсор вправо</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>Сменить знак</translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation>Десятичная точка</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Мин</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Минимум</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Макс</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Максимум</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>По умолч.</translation>
    </message>
</context>
<context>
    <name>NumpadPanel</name>
    <message>
        <source>Value: %1</source>
        <translation>Значение: %1</translation>
    </message>
    <message>
        <source>Range: %1 to %2</source>
        <translation>Диапазон: от %1 до %2</translation>
    </message>
    <message>
        <source>Step: %1</source>
        <translation>Шаг: %1</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Ввод</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Edit digits</source>
        <translation>Править цифры</translation>
    </message>
    <message>
        <source>Display password</source>
        <translation>Показать пароль</translation>
    </message>
    <message>
        <source>Disable password protection</source>
        <translation>Отключить защиту паролем</translation>
    </message>
</context>
<context>
    <name>QLrudDialog</name>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Влево</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Вправо</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>Клавиатура</translation>
    </message>
    <message>
        <source>Move keys up</source>
        <translation>Сдвинуть клавиши вверх</translation>
    </message>
    <message>
        <source>Move keys down</source>
        <translation>Сдвинуть клавиши вниз</translation>
    </message>
</context>
<context>
    <name>QvexDialogBorder</name>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Переместить вверх</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Переместить вниз</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Переместить влево</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Переместить вправо</translation>
    </message>
</context>
<context>
    <name>QvexFileMover</name>
    <message>
        <source>%1 was not carried: %2</source>
        <translation>не удалось передать %1: %2</translation>
    </message>
    <message>
        <source>%1 was not carried: an unknown exception</source>
        <translation>не удалось передать %1: неизвестное исключение</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>не удалось прочитать %1: %2</translation>
    </message>
    <message>
        <source>%1 exists on the instrument</source>
        <translation>%1 уже существует на приборе</translation>
    </message>
    <message>
        <source>the instrument cannot write %1</source>
        <translation>прибор не может записать %1</translation>
    </message>
    <message>
        <source>the instrument could not store what was sent of %1</source>
        <translation>прибор не смог сохранить переданные данные %1</translation>
    </message>
    <message>
        <source>the destination has appeared on the instrument meanwhile</source>
        <translation>тем временем объект назначения появился на приборе</translation>
    </message>
    <message>
        <source>the instrument could not store the file</source>
        <translation>прибор не смог сохранить файл</translation>
    </message>
    <message>
        <source>%1 has shrunk while it was read</source>
        <translation>размер %1 уменьшился во время чтения</translation>
    </message>
    <message>
        <source>aborted after %1 bytes</source>
        <translation>прервано после %1 байт</translation>
    </message>
    <message>
        <source>the instrument cannot read %1</source>
        <translation>прибор не может прочитать %1</translation>
    </message>
    <message>
        <source>%1 exists</source>
        <translation>%1 уже существует</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>не удалось удалить %1: %2</translation>
    </message>
    <message>
        <source>the folder of %1 cannot be made</source>
        <translation>не удалось создать папку для %1</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>не удалось записать %1: %2</translation>
    </message>
    <message>
        <source>the instrument could not read the file to its end</source>
        <translation>прибор не смог прочитать файл до конца</translation>
    </message>
</context>
<context>
    <name>QvexMessageBox</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Не сохранять</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>По умолчанию</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Сохранить все</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>Yes to All</source>
        <translation>Да для всех</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>No to All</source>
        <translation>Нет для всех</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Прервать</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Игнорировать</translation>
    </message>
    <message>
        <source>Hide Details</source>
        <translation>Скрыть подробности</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Показать подробности</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Вопрос</translation>
    </message>
</context>
<context>
    <name>QvexNumpadDlg</name>
    <message>
        <source>The value stays as it is</source>
        <translation>Значение не изменится</translation>
    </message>
    <message>
        <source>%1; or choose a unit</source>
        <translation>%1; или выберите единицу</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Введите число</translation>
    </message>
</context>
<context>
    <name>QvexPasswordPopup</name>
    <message>
        <source>Password Protection</source>
        <translation>Защита паролем</translation>
    </message>
    <message>
        <source>Password Does Not Match.
Please Type Correct Password!</source>
        <translation>Неверный пароль.
Введите правильный пароль.</translation>
    </message>
</context>
<context>
    <name>QvexRemoteFileModel</name>
    <message>
        <source>It was cancelled.</source>
        <translation>Операция отменена.</translation>
    </message>
    <message>
        <source>Another operation is still running.</source>
        <translation>Ещё выполняется другая операция.</translation>
    </message>
    <message>
        <source>The link to the instrument was lost; it is not known whether it was done.</source>
        <translation>Связь с прибором потеряна; неизвестно, выполнена ли операция.</translation>
    </message>
    <message>
        <source>Its name can&apos;t be used.</source>
        <translation>Это имя нельзя использовать.</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Прибор</translation>
    </message>
    <message>
        <source>Instrument (%1)</source>
        <translation>Прибор (%1)</translation>
    </message>
    <message>
        <source>Internal</source>
        <translatorcomment>Never shown: compared with the name of a directory on the instrument.</translatorcomment>
        <translation>Internal</translation>
    </message>
    <message>
        <source>Remote</source>
        <translatorcomment>Never shown: compared with the name of a directory on the instrument.</translatorcomment>
        <translation>Remote</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Объект больше не существует.</translation>
    </message>
    <message>
        <source>There is no permission for it.</source>
        <translation>Недостаточно прав.</translation>
    </message>
    <message>
        <source>Something of that name is there already.</source>
        <translation>Объект с таким именем уже существует.</translation>
    </message>
    <message>
        <source>A folder can&apos;t be put into itself.</source>
        <translation>Папку нельзя поместить в неё саму.</translation>
    </message>
    <message>
        <source>The instrument&apos;s storage is full.</source>
        <translation>Память прибора заполнена.</translation>
    </message>
    <message>
        <source>The instrument reported error %1.</source>
        <translation>Прибор сообщил об ошибке %1.</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>Не удалось создать здесь папку: возможно, место защищено.</translation>
    </message>
</context>
<context>
    <name>QvextHelpDialog</name>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Вперёд</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Начало</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Страница справки</translation>
    </message>
</context>
<context>
    <name>RemoteSource</name>
    <message>
        <source>it is not there</source>
        <translation>не существует</translation>
    </message>
</context>
<context>
    <name>RemoteTarget</name>
    <message>
        <source>the instrument cannot replace %1</source>
        <translation>прибор не может заменить %1</translation>
    </message>
    <message>
        <source>%1; the old file may be called %2 now</source>
        <translation>%1; прежний файл может теперь называться %2</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Close panel</source>
        <translation>Закрыть панель</translation>
    </message>
</context>
<context>
    <name>SplashLines</name>
    <message>
        <source>Start-up messages</source>
        <translation>Сообщения при запуске</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Stop what is under way</source>
        <translation>Остановить текущую операцию</translation>
    </message>
</context>
<context>
    <name>TransferPanel</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/с</translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation>Ход передачи</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Cancel the transfer</source>
        <translation>Отменить передачу</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Отмена…</translation>
    </message>
</context>
<context>
    <name>TransferView</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be copied into itself.</source>
        <translation>«%1» нельзя скопировать внутрь самого себя.</translation>
    </message>
    <message>
        <source>Both sides show the same folder.</source>
        <translation>На обеих сторонах показана одна и та же папка.</translation>
    </message>
    <message>
        <source>Copy to the right side</source>
        <translation>Копировать на правую сторону</translation>
    </message>
    <message>
        <source>Copy to the left side</source>
        <translation>Копировать на левую сторону</translation>
    </message>
    <message>
        <source>To %1:</source>
        <translation>Куда: %1</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>Передача</translation>
    </message>
</context>
<context>
    <name>UnitPrefix</name>
    <message>
        <source>Enter a number before the unit</source>
        <translation>Введите число перед единицей</translation>
    </message>
    <message>
        <source>Too many digits for this unit</source>
        <translation>Слишком много цифр для этой единицы</translation>
    </message>
</context>
<context>
    <name>VerdictSign</name>
    <message>
        <source>No result</source>
        <translation>Нет результата</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>Пройдено</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Не пройдено</translation>
    </message>
    <message>
        <source>See results</source>
        <translation>См. результаты</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>subject and verdict</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>VexLinkSupervisor</name>
    <message>
        <source>registered with %1:%2 as client %3</source>
        <translation>регистрация на %1:%2 выполнена, клиент %3</translation>
    </message>
    <message>
        <source>the controller answers again</source>
        <translation>контроллер снова отвечает</translation>
    </message>
    <message>
        <source>connecting to %1:%2, attempt %3</source>
        <translation>подключение к %1:%2, попытка %3</translation>
    </message>
    <message>
        <source>no answer for %1 ms</source>
        <translation>нет ответа %1 мс</translation>
    </message>
    <message>
        <source>no longer watched</source>
        <translation>наблюдение прекращено</translation>
    </message>
</context>
</TS>
