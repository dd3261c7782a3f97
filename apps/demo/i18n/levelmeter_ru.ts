<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>ControlButtons</name>
    <message>
        <source>Autosave: on</source>
        <translation>Автосохранение: вкл.</translation>
    </message>
    <message>
        <source>Autosave: off</source>
        <translation>Автосохранение: выкл.</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
</context>
<context>
    <name>EventList</name>
    <message>
        <source>Events</source>
        <translation>События</translation>
    </message>
</context>
<context>
    <name>Framework</name>
    <message>
        <source>The level meter runs alone: there is no other application.</source>
        <translation>Измеритель уровня работает один: других приложений нет.</translation>
    </message>
    <message>
        <source>A run is under way. Stop it and close?</source>
        <translation>Идёт измерение. Остановить его и закрыть?</translation>
    </message>
    <message>
        <source>The last result was not saved. Close all the same?</source>
        <translation>Последний результат не сохранён. Всё равно закрыть?</translation>
    </message>
    <message>
        <source>Close the level meter</source>
        <translation>Закрыть измеритель уровня</translation>
    </message>
</context>
<context>
    <name>LinkPanel</name>
    <message>
        <source>Link up</source>
        <translation>Связь есть</translation>
    </message>
    <message>
        <source>Link slow</source>
        <translation>Связь медленная</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>Link lost</source>
        <translation>Связь потеряна</translation>
    </message>
    <message>
        <source>No link</source>
        <translation>Нет связи</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Связь</translation>
    </message>
    <message>
        <source>Try again now</source>
        <translation>Повторить сейчас</translation>
    </message>
</context>
<context>
    <name>LogPanel</name>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>The log is not kept in a file.</source>
        <translation>Журнал не записывается в файл.</translation>
    </message>
    <message>
        <source>The log is kept in %1</source>
        <translation>Журнал находится в %1</translation>
    </message>
</context>
<context>
    <name>Meter</name>
    <message>
        <source>The instrument does not say whether its test has ended.</source>
        <translation>Прибор не сообщает, завершён ли его тест.</translation>
    </message>
    <message>
        <source>Stopped without a link; the instrument&apos;s test is ended when the link is back.</source>
        <translation>Остановлено без связи; тест прибора будет завершён, когда связь восстановится.</translation>
    </message>
    <message>
        <source>The instrument refused to launch its test &quot;%1&quot;.</source>
        <translation>Прибор отказался запустить тест «%1».</translation>
    </message>
    <message>
        <source>The link was lost before the test ran: %1</source>
        <translation>Связь потеряна до начала теста: %1</translation>
    </message>
    <message>
        <source>Link lost: %1</source>
        <translation>Связь потеряна: %1</translation>
    </message>
    <message>
        <source>The link was lost while the test ended.</source>
        <translation>Связь потеряна во время завершения теста.</translation>
    </message>
    <message>
        <source>The instrument&apos;s test runs.</source>
        <translation>Тест прибора выполняется.</translation>
    </message>
    <message>
        <source>The link is back, the run goes on.</source>
        <translation>Связь восстановлена, измерение продолжается.</translation>
    </message>
    <message>
        <source>Level below the threshold: %1 dBm</source>
        <translation>Уровень ниже порога: %1 dBm</translation>
    </message>
    <message>
        <source>Level back above the threshold</source>
        <translation>Уровень снова выше порога</translation>
    </message>
    <message>
        <source>The test ended before it ran.</source>
        <translation>Тест завершился, не начавшись.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Остановлено</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Завершено</translation>
    </message>
    <message>
        <source>The link is back, but the instrument&apos;s test has ended.</source>
        <translation>Связь восстановлена, но тест прибора завершился.</translation>
    </message>
    <message>
        <source>The instrument has ended its test before the time was over.</source>
        <translation>Прибор завершил тест раньше времени.</translation>
    </message>
</context>
<context>
    <name>MeterWindow</name>
    <message>
        <source>Measuring</source>
        <translation>Измерение</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готов</translation>
    </message>
    <message>
        <source>Level meter</source>
        <translation>Измеритель уровня</translation>
    </message>
</context>
<context>
    <name>PlotPanel</name>
    <message>
        <source>Zoom in</source>
        <translation>Крупнее</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Мельче</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Вписать</translation>
    </message>
    <message>
        <source>No markers</source>
        <translation>Без меток</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Метки</translation>
    </message>
    <message>
        <source>Tap the trace to set a marker.</source>
        <translation>Коснитесь кривой, чтобы поставить метку.</translation>
    </message>
</context>
<context>
    <name>ResultFiles</name>
    <message>
        <source>Save the result</source>
        <translation>Сохранить результат</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Сохранено как %1</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>Файлы результатов</translation>
    </message>
    <message>
        <source>%1 is on the instrument now</source>
        <translation>%1 теперь на приборе</translation>
    </message>
    <message>
        <source>%1 did not get to the instrument: %2</source>
        <translation>%1 не передан на прибор: %2</translation>
    </message>
    <message>
        <source>Files of the instrument</source>
        <translation>Файлы прибора</translation>
    </message>
    <message>
        <source>Delete %1? It can&apos;t be brought back.</source>
        <translation>Удалить %1? Восстановить будет нельзя.</translation>
    </message>
    <message>
        <source>Delete a result</source>
        <translation>Удаление результата</translation>
    </message>
    <message>
        <source>%1 can&apos;t be deleted.</source>
        <translation>Не удаётся удалить %1.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Результаты</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Choose a result at the left.</source>
        <translation>Выберите результат слева.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Измерено</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Окончание</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Мин. уровень</translation>
    </message>
    <message>
        <source>Highest level</source>
        <translation>Макс. уровень</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>Средн. мощность</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>Битовые ошибки</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>Доля ошибок</translation>
    </message>
    <message>
        <source>Lowest level allowed</source>
        <translation>Допустимый мин. уровень</translation>
    </message>
    <message>
        <source>Error ratio allowed</source>
        <translation>Допустимая доля ошибок</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>Оптическая частота</translation>
    </message>
    <message>
        <source>%1 THz</source>
        <translation>%1 THz</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Скорость передачи</translation>
    </message>
    <message>
        <source>%1 Gbit/s</source>
        <translation>%1 Gbit/s</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Прибор</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Порты</translation>
    </message>
    <message>
        <source>Saved results</source>
        <translation>Сохранённые результаты</translation>
    </message>
    <message>
        <source>Nothing was saved yet. A run that is over is saved in the test window.</source>
        <translation>Пока ничего не сохранено. Завершённое измерение сохраняется в окне теста.</translation>
    </message>
    <message>
        <source>Figures of the result</source>
        <translation>Показатели результата</translation>
    </message>
    <message>
        <source>Open another file</source>
        <translation>Другой файл</translation>
    </message>
    <message>
        <source>Upload to instrument</source>
        <translation>Передать на прибор</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>Ход передачи</translation>
    </message>
    <message>
        <source>Files of instrument</source>
        <translation>Файлы прибора</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>RunFile</name>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>Не удаётся записать %1: %2</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>Не удаётся прочитать %1: %2</translation>
    </message>
    <message>
        <source>%1 is larger than %2 MiB.</source>
        <translation>%1 больше %2 МиБ.</translation>
    </message>
    <message>
        <source>%1 is no run of the level meter: %2</source>
        <translation>%1 — не измерение измерителя уровня: %2</translation>
    </message>
</context>
<context>
    <name>RunReader</name>
    <message>
        <source>it does not begin as XML does</source>
        <translation>начало не похоже на XML</translation>
    </message>
    <message>
        <source>a tag in it is too long</source>
        <translation>слишком длинный тег</translation>
    </message>
    <message>
        <source>another application has written it</source>
        <translation>записан другим приложением</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>строка %1: %2</translation>
    </message>
    <message>
        <source>it has no document type VEX</source>
        <translation>нет типа документа VEX</translation>
    </message>
    <message>
        <source>it declares entities</source>
        <translation>объявляет сущности</translation>
    </message>
    <message>
        <source>line %1: unknown element %2</source>
        <translation>строка %1: неизвестный элемент %2</translation>
    </message>
    <message>
        <source>its settings come after its samples</source>
        <translation>настройки стоят после отсчётов</translation>
    </message>
    <message>
        <source>it has too many events</source>
        <translation>слишком много событий</translation>
    </message>
    <message>
        <source>it has too many samples</source>
        <translation>слишком много отсчётов</translation>
    </message>
    <message>
        <source>line %1: the samples are not in order</source>
        <translation>строка %1: отсчёты не по порядку</translation>
    </message>
    <message>
        <source>line %1: expected a number from %2 to %3, found &apos;%4&apos;</source>
        <translation>строка %1: ожидалось число от %2 до %3, найдено «%4»</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Test at the instrument</source>
        <translation>Тест прибора</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>What is measured, and its limits</source>
        <translation>Измерение и пределы</translation>
    </message>
    <message>
        <source>Pattern that is sent, 32 bits</source>
        <translation>Передаваемая комбинация, 32 бита</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Шестнадцат.</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Двоичный</translation>
    </message>
    <message>
        <source>PAM4 symbols</source>
        <translation>Символы PAM4</translation>
    </message>
    <message>
        <source>The three fields show the same pattern: each follows the others.</source>
        <translation>Три поля показывают одну комбинацию: каждое следует за другими.</translation>
    </message>
    <message>
        <source>A run is under way. It can be stopped in the test window.</source>
        <translation>Идёт измерение. Его можно остановить в окне теста.</translation>
    </message>
    <message>
        <source>Light colours</source>
        <translation>Светлые цвета</translation>
    </message>
    <message>
        <source>Dark colours</source>
        <translation>Тёмные цвета</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Standard values</source>
        <translation>По умолчанию</translation>
    </message>
    <message>
        <source>Start the test</source>
        <translation>Начать тест</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>Оптическая частота</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Скорость передачи</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Мин. уровень</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Длительность</translation>
    </message>
    <message>
        <source>Samples per second</source>
        <translation>Отсчётов в секунду</translation>
    </message>
    <message>
        <source>Error ratio limit, power of 10</source>
        <translation>Предел ошибок, степень 10</translation>
    </message>
</context>
<context>
    <name>TestPage</name>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Сохранено</translation>
    </message>
    <message>
        <source>Save result</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>The instrument launches its test &quot;%1&quot; ...</source>
        <translation>Прибор запускает тест «%1» ...</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Измерение</translation>
    </message>
    <message>
        <source>The link is lost. The run goes on when it is back.</source>
        <translation>Связь потеряна. Измерение продолжится после её восстановления.</translation>
    </message>
    <message>
        <source>The instrument ends its test ...</source>
        <translation>Прибор завершает тест ...</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готов</translation>
    </message>
    <message>
        <source>No link to the instrument, so no test can be started.</source>
        <translation>Нет связи с прибором, тест запустить нельзя.</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Прервано</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Идёт</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Level now</source>
        <translation>Уровень</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Мин. уровень</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>Средн. мощность</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>Битовые ошибки</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>Доля ошибок</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Ход измерения</translation>
    </message>
</context>
<context>
    <name>TracePlot</name>
    <message>
        <source>Trace of the level over time</source>
        <translation>Кривая уровня во времени</translation>
    </message>
    <message>
        <source>Time in s</source>
        <translation>Время, s</translation>
    </message>
    <message>
        <source>Level in dBm</source>
        <translation>Уровень, dBm</translation>
    </message>
    <message>
        <source>%1: %2 s, %3 dBm</source>
        <translation>%1: %2 s, %3 dBm</translation>
    </message>
    <message>
        <source>B - A: %1 s, %2 dB</source>
        <translation>B - A: %1 s, %2 dB</translation>
    </message>
    <message>
        <source>no link</source>
        <translation>нет связи</translation>
    </message>
    <message>
        <source>Threshold %1 dBm</source>
        <translation>Порог %1 dBm</translation>
    </message>
</context>
<context>
    <name>Wording</name>
    <message>
        <source>PASS</source>
        <translation>ГОДЕН</translation>
    </message>
    <message>
        <source>FAIL</source>
        <translation>НЕ ГОДЕН</translation>
    </message>
    <message>
        <source>No verdict</source>
        <translation>Нет оценки</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Завершено</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Остановлено</translation>
    </message>
    <message>
        <source>Ended by the instrument</source>
        <translation>Завершено прибором</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>Не начато</translation>
    </message>
    <message>
        <source>The instrument did not answer in time.</source>
        <translation>Прибор не ответил вовремя.</translation>
    </message>
    <message>
        <source>The connection broke.</source>
        <translation>Соединение прервалось.</translation>
    </message>
    <message>
        <source>Nothing answers at that address.</source>
        <translation>По этому адресу никто не отвечает.</translation>
    </message>
    <message>
        <source>The connection was closed.</source>
        <translation>Соединение закрыто.</translation>
    </message>
    <message>
        <source>There is no instrument there.</source>
        <translation>Там нет прибора.</translation>
    </message>
</context>
</TS>
