<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>Talk to your agents and see what they answer.</source>
        <translation>Говорите со своими агентами и смотрите, что они отвечают.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Copy diagnostics</source>
        <translation>Скопировать диагностику</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Скопировано</translation>
    </message>
    <message>
        <source>Third-party notices</source>
        <translation>Сторонние компоненты</translation>
    </message>
</context>
<context>
    <name>AccountBody</name>
    <message>
        <source>Your account could not be loaded</source>
        <translation>Не удалось загрузить аккаунт</translation>
    </message>
</context>
<context>
    <name>AccountPage</name>
    <message>
        <source>Account</source>
        <translation>Аккаунт</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>All changes saved</source>
        <translation>Все изменения сохранены</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Сохранение…</translation>
    </message>
    <message>
        <source>Not everything is saved</source>
        <translation>Сохранено не всё</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>Ещё не сохранено</translation>
    </message>
</context>
<context>
    <name>AccountTabs</name>
    <message>
        <source>Account pages</source>
        <translation>Страницы аккаунта</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Профиль</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Тариф</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Безопасность</translation>
    </message>
    <message>
        <source>Workspace memory</source>
        <translation>Память</translation>
    </message>
    <message>
        <source>Data sources</source>
        <translation>Источники данных</translation>
    </message>
    <message>
        <source>Voice style</source>
        <translation>Стиль речи</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Уведомления</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Выйти</translation>
    </message>
</context>
<context>
    <name>Age</name>
    <message>
        <source>now</source>
        <translation>сейчас</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 мин</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 ч</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 дн.</translation>
    </message>
</context>
<context>
    <name>AgentTile</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Talk</source>
        <translation>Написать</translation>
    </message>
    <message>
        <source>Talk to %1</source>
        <translation>Написать: %1</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Позвонить</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Позвонить: %1</translation>
    </message>
</context>
<context>
    <name>AgentsPage</name>
    <message>
        <source>Agents</source>
        <translation>Агенты</translation>
    </message>
</context>
<context>
    <name>AppearanceSettings</name>
    <message>
        <source>Appearance</source>
        <translation>Оформление</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Тема</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Размер текста</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>System</source>
        <comment>theme</comment>
        <translation>Системная</translation>
    </message>
    <message>
        <source>Light</source>
        <comment>theme</comment>
        <translation>Светлая</translation>
    </message>
    <message>
        <source>Dark</source>
        <comment>theme</comment>
        <translation>Тёмная</translation>
    </message>
    <message>
        <source>System</source>
        <comment>language</comment>
        <translation>Системный</translation>
    </message>
</context>
<context>
    <name>Art</name>
    <message>
        <source>Report</source>
        <translation>Отчёт</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Сравнение</translation>
    </message>
    <message>
        <source>Decision</source>
        <translation>Решение</translation>
    </message>
    <message>
        <source>Agents</source>
        <translation>Агенты</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Статус</translation>
    </message>
    <message>
        <source>Funnel</source>
        <translation>Воронка</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Доли</translation>
    </message>
    <message>
        <source>Brief</source>
        <translation>Доска</translation>
    </message>
    <message>
        <source>Retro</source>
        <translation>Ретро</translation>
    </message>
    <message>
        <source>Costs</source>
        <translation>Расходы</translation>
    </message>
    <message>
        <source>Cash flow</source>
        <translation>Денежный поток</translation>
    </message>
    <message>
        <source>Objectives</source>
        <translation>Цели</translation>
    </message>
    <message>
        <source>Workload</source>
        <translation>Загрузка</translation>
    </message>
    <message>
        <source>Budget</source>
        <translation>Бюджет</translation>
    </message>
</context>
<context>
    <name>AskBar</name>
    <message>
        <source>Attach files</source>
        <translation>Прикрепить файлы</translation>
    </message>
    <message>
        <source>Drop to attach</source>
        <translation>Отпустите, чтобы прикрепить</translation>
    </message>
</context>
<context>
    <name>AskDialog</name>
    <message>
        <source>Keep editing</source>
        <translation>Продолжить</translation>
    </message>
</context>
<context>
    <name>AttachTray</name>
    <message>
        <source>Attached files</source>
        <translation>Прикреплённые файлы</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Загрузка</translation>
    </message>
    <message>
        <source>The upload failed</source>
        <translation>Файл не загрузился</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>BriefColumn</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>BudgetBar</name>
    <message>
        <source>Tokens: %1 spent, %2 left</source>
        <translation>Токены: потрачено %1, осталось %2</translation>
    </message>
    <message>
        <source>%1 spent</source>
        <translation>Потрачено: %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Осталось: %1</translation>
    </message>
</context>
<context>
    <name>BudgetColumns</name>
    <message>
        <source>no plan</source>
        <translation>нет плана</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>Сверх</translation>
    </message>
</context>
<context>
    <name>BudgetRow</name>
    <message>
        <source>no plan</source>
        <translation>нет плана</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>Сверх</translation>
    </message>
    <message>
        <source>plan %1</source>
        <translation>план %1</translation>
    </message>
</context>
<context>
    <name>BudgetScene</name>
    <message>
        <source>Line</source>
        <translation>Статья</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>План</translation>
    </message>
    <message>
        <source>Actual</source>
        <translation>Факт</translation>
    </message>
    <message>
        <source>Delta</source>
        <translation>Разница</translation>
    </message>
</context>
<context>
    <name>CallControls</name>
    <message>
        <source>Call</source>
        <translation>Звонок</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Включить микрофон</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Выключить микрофон</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Удержать</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Микрофон</translation>
    </message>
    <message>
        <source>Type instead</source>
        <translation>Написать</translation>
    </message>
    <message>
        <source>Copy the link of the canvas</source>
        <translation>Скопировать ссылку на холст</translation>
    </message>
    <message>
        <source>Hide the transcript</source>
        <translation>Скрыть запись</translation>
    </message>
    <message>
        <source>Show the transcript</source>
        <translation>Показать запись</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Завершить звонок</translation>
    </message>
</context>
<context>
    <name>CallHead</name>
    <message>
        <source>Call with %1</source>
        <translation>Звонок: %1</translation>
    </message>
    <message>
        <source>Back to the window</source>
        <translation>Вернуться в окно</translation>
    </message>
</context>
<context>
    <name>CallNews</name>
    <message>
        <source>Reconnecting</source>
        <translation>Соединяем снова</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Соединяем</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Звонок завершён</translation>
    </message>
    <message>
        <source>Ending soon</source>
        <translation>Скоро завершится</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Соединение есть</translation>
    </message>
</context>
<context>
    <name>CallPill</name>
    <message>
        <source>Back to the call</source>
        <translation>Вернуться к звонку</translation>
    </message>
    <message>
        <source>Back to the call with %1, on hold</source>
        <translation>Вернуться к звонку: %1, на удержании</translation>
    </message>
    <message>
        <source>Back to the call with %1, muted</source>
        <translation>Вернуться к звонку: %1, микрофон выключен</translation>
    </message>
    <message>
        <source>Back to the call with %1</source>
        <translation>Вернуться к звонку: %1</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Соединяем</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Звонок завершён</translation>
    </message>
</context>
<context>
    <name>CallScreen</name>
    <message>
        <source>Call with %1</source>
        <translation>Звонок: %1</translation>
    </message>
</context>
<context>
    <name>CallStage</name>
    <message>
        <source>Reconnecting</source>
        <translation>Соединяем снова</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Соединяем</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Звонок завершён</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>На удержании</translation>
    </message>
    <message>
        <source>Ending soon</source>
        <translation>Скоро завершится</translation>
    </message>
    <message>
        <source>%1 is speaking</source>
        <translation>Говорит %1</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Микрофон выключен</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Слушает</translation>
    </message>
</context>
<context>
    <name>CallsPage</name>
    <message>
        <source>Calls</source>
        <translation>Звонки</translation>
    </message>
</context>
<context>
    <name>CanvasActions</name>
    <message>
        <source>Open the folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Скопировано</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Refine</source>
        <translation>Уточнить</translation>
    </message>
</context>
<context>
    <name>CanvasCaption</name>
    <message>
        <source>%1 is thinking</source>
        <translation>%1 думает</translation>
    </message>
    <message>
        <source>Drawing the %1</source>
        <translation>Рисуем: %1</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>Answer to “%1”</source>
        <translation>Ответ на «%1»</translation>
    </message>
    <message>
        <source>Back to the window</source>
        <translation>Вернуться в окно</translation>
    </message>
    <message>
        <source>Fill the window</source>
        <translation>Во всё окно</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Ctrl Shift F</source>
        <translation>Ctrl Shift F</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
</context>
<context>
    <name>CanvasCard</name>
    <message>
        <source>%1, on the canvas</source>
        <translation>%1, на холсте</translation>
    </message>
    <message>
        <source>Show %1 on the canvas</source>
        <translation>Показать на холсте: %1</translation>
    </message>
    <message>
        <source>On canvas</source>
        <translation>На холсте</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Показать</translation>
    </message>
</context>
<context>
    <name>CanvasView</name>
    <message>
        <source>Canvas</source>
        <translation>Холст</translation>
    </message>
    <message>
        <source>Ask for something with numbers</source>
        <translation>Спросите о чём-нибудь с цифрами</translation>
    </message>
    <message>
        <source>The answer is drawn here, and the text stays in the conversation.</source>
        <translation>Ответ будет нарисован здесь, а текст останется в разговоре.</translation>
    </message>
    <message>
        <source>As a table</source>
        <translation>Таблицей</translation>
    </message>
    <message>
        <source>As a list</source>
        <translation>Списком</translation>
    </message>
    <message>
        <source>No answer came</source>
        <translation>Ответ не пришёл</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
</context>
<context>
    <name>CashflowScene</name>
    <message>
        <source>In</source>
        <translation>Приход</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Расход</translation>
    </message>
</context>
<context>
    <name>ChatDock</name>
    <message>
        <source>Conversation</source>
        <translation>Разговор</translation>
    </message>
    <message>
        <source>Find in the conversation</source>
        <translation>Найти в разговоре</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>Continue in the rail</source>
        <translation>Продолжить в боковой панели</translation>
    </message>
    <message>
        <source>Close the conversation</source>
        <translation>Закрыть разговор</translation>
    </message>
    <message>
        <source>Enter to send</source>
        <translation>Enter — отправить</translation>
    </message>
    <message>
        <source>Shift+Enter for a new line</source>
        <translation>Shift+Enter — новая строка</translation>
    </message>
    <message>
        <source>Open the folder</source>
        <translation>Открыть папку</translation>
    </message>
</context>
<context>
    <name>ChoiceEntry</name>
    <message>
        <source>Not set</source>
        <translation>Не указано</translation>
    </message>
</context>
<context>
    <name>ChoiceList</name>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Ничего не найдено</translation>
    </message>
</context>
<context>
    <name>CodeHead</name>
    <message>
        <source>Copied</source>
        <translation>Скопировано</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>Find a command, a project, an agent or a canvas</source>
        <translation>Найти команду, проект, агента или холст</translation>
    </message>
    <message>
        <source>Nothing is called that</source>
        <translation>Такого названия нет</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Найдено</translation>
    </message>
</context>
<context>
    <name>Composer</name>
    <message>
        <source>Ask %1…</source>
        <translation>Спросите %1…</translation>
    </message>
    <message>
        <source>Offline: sent once the connection is back</source>
        <translation>Нет связи: отправится, когда она вернётся</translation>
    </message>
    <message>
        <source>Uploading…</source>
        <translation>Загрузка…</translation>
    </message>
</context>
<context>
    <name>ConversationMenu</name>
    <message>
        <source>Find in the conversation</source>
        <translation>Найти в разговоре</translation>
    </message>
    <message>
        <source>Ctrl F</source>
        <translation>Ctrl F</translation>
    </message>
    <message>
        <source>Save as Markdown</source>
        <translation>Сохранить как Markdown</translation>
    </message>
    <message>
        <source>Copy as Markdown</source>
        <translation>Копировать как Markdown</translation>
    </message>
</context>
<context>
    <name>CostsScene</name>
    <message>
        <source>total</source>
        <translation>всего</translation>
    </message>
</context>
<context>
    <name>CreateDraft</name>
    <message>
        <source>Tools: none</source>
        <translation>Инструменты: нет</translation>
    </message>
    <message>
        <source>Tools: %1</source>
        <translation>Инструменты: %1</translation>
    </message>
    <message>
        <source>Autonomy: %1. %2.</source>
        <translation>Самостоятельность: %1. %2.</translation>
    </message>
</context>
<context>
    <name>CreateWizard</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>What would you like to create?</source>
        <translation>Что создать?</translation>
    </message>
    <message>
        <source>A project holds the work, an agent does it.</source>
        <translation>В проекте живёт работа, а делает её агент.</translation>
    </message>
    <message>
        <source>Pick a template</source>
        <translation>Выберите шаблон</translation>
    </message>
    <message>
        <source>It fills the next steps, and every field can be changed.</source>
        <translation>Он заполнит следующие шаги, и любое поле можно изменить.</translation>
    </message>
    <message>
        <source>Drop what you typed?</source>
        <translation>Отказаться от введённого?</translation>
    </message>
    <message>
        <source>Nothing has been created yet. What you filled in is not kept.</source>
        <translation>Пока ничего не создано. Введённое не сохранится.</translation>
    </message>
    <message>
        <source>Drop it</source>
        <translation>Отказаться</translation>
    </message>
</context>
<context>
    <name>CriterionRow</name>
    <message>
        <source>A %1 · B %2</source>
        <translation>A %1 · B %2</translation>
    </message>
</context>
<context>
    <name>CropDialog</name>
    <message>
        <source>Your picture</source>
        <translation>Ваша фотография</translation>
    </message>
    <message>
        <source>The part of the picture that is kept. Arrow keys move it, plus and minus change its size.</source>
        <translation>Часть снимка, которая останется. Стрелки двигают её, плюс и минус меняют размер.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Use this picture</source>
        <translation>Взять этот снимок</translation>
    </message>
</context>
<context>
    <name>DaysEntry</name>
    <message>
        <source>Days</source>
        <translation>Дни</translation>
    </message>
</context>
<context>
    <name>DecisionScene</name>
    <message>
        <source>Total</source>
        <translation>Итог</translation>
    </message>
</context>
<context>
    <name>DetailsPage</name>
    <message>
        <source>Who is it?</source>
        <translation>Кто это?</translation>
    </message>
    <message>
        <source>What is it about?</source>
        <translation>О чём проект?</translation>
    </message>
    <message>
        <source>The name is what you call it, the role is what it does.</source>
        <translation>Как вы его зовёте и что он делает.</translation>
    </message>
    <message>
        <source>Every agent in the project reads the brief.</source>
        <translation>Бриф читает каждый агент проекта.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Роль</translation>
    </message>
    <message>
        <source>Brief</source>
        <translation>Бриф</translation>
    </message>
</context>
<context>
    <name>DockLoader</name>
    <message>
        <source>Width of the chat dock</source>
        <translation>Ширина панели чата</translation>
    </message>
</context>
<context>
    <name>DocumentEditor</name>
    <message>
        <source>All documents</source>
        <translation>Все документы</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Просмотр</translation>
    </message>
    <message>
        <source>%1 of %2 characters</source>
        <translation>%1 из %2 символов</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
</context>
<context>
    <name>DocumentList</name>
    <message>
        <source>Workspace memory</source>
        <translation>Память</translation>
    </message>
    <message>
        <source>What agents read before they answer you. Written in markdown.</source>
        <translation>Что агенты читают, прежде чем ответить. Пишется в Markdown.</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Общее</translation>
    </message>
    <message>
        <source>What every agent of the workspace knows</source>
        <translation>Что знает каждый агент рабочего пространства</translation>
    </message>
    <message>
        <source>Decisions</source>
        <translation>Решения</translation>
    </message>
    <message>
        <source>What was decided, and why</source>
        <translation>Что решили и почему</translation>
    </message>
    <message>
        <source>Routine</source>
        <translation>Распорядок</translation>
    </message>
    <message>
        <source>What happens every day, week and month</source>
        <translation>Что происходит каждый день, неделю и месяц</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Инструменты</translation>
    </message>
    <message>
        <source>What you work with, and how</source>
        <translation>Чем вы пользуетесь и как</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Цели</translation>
    </message>
    <message>
        <source>What all of this is for</source>
        <translation>Ради чего всё это</translation>
    </message>
    <message>
        <source>Glossary</source>
        <translation>Словарь</translation>
    </message>
    <message>
        <source>Your words for things</source>
        <translation>Как вы что называете</translation>
    </message>
    <message>
        <source>Learned about you</source>
        <translation>Наблюдения о вас</translation>
    </message>
    <message>
        <source>What agents noticed about how you work</source>
        <translation>Что агенты заметили о том, как вы работаете</translation>
    </message>
    <message>
        <source>Global rules</source>
        <translation>Общие правила</translation>
    </message>
    <message>
        <source>What every agent always does, or never</source>
        <translation>Что каждый агент делает всегда или никогда</translation>
    </message>
    <message>
        <source>Chat rules</source>
        <translation>Правила чата</translation>
    </message>
    <message>
        <source>How agents behave in conversations</source>
        <translation>Как агенты ведут себя в разговоре</translation>
    </message>
    <message>
        <source>Facts</source>
        <translation>Факты</translation>
    </message>
    <message>
        <source>What agents should know about you</source>
        <translation>Что агентам стоит знать о вас</translation>
    </message>
</context>
<context>
    <name>DocumentPreview</name>
    <message>
        <source>Nothing to read yet</source>
        <translation>Читать пока нечего</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Просмотр</translation>
    </message>
</context>
<context>
    <name>DocumentRow</name>
    <message>
        <source>Not saved</source>
        <translation>Не сохранено</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Пусто</translation>
    </message>
    <message numerus="yes">
        <source>%Ln character(s)</source>
        <translation>
            <numerusform>%Ln символ</numerusform>
            <numerusform>%Ln символа</numerusform>
            <numerusform>%Ln символов</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EngineGuard</name>
    <message>
        <source>The root user cannot place calls: the web engine cannot protect this computer from what it loads.</source>
        <translation>Пользователь root не может звонить: веб-движок не может защитить этот компьютер от того, что загружает.</translation>
    </message>
    <message>
        <source>Pages are not shown to the root user: the web engine cannot protect this computer from them.</source>
        <translation>Пользователю root страницы не показываются: веб-движок не может защитить от них этот компьютер.</translation>
    </message>
    <message>
        <source>Calls cannot be placed: this system does not let the web engine protect the computer from what it loads.</source>
        <translation>Звонки невозможны: эта система не даёт веб-движку защитить компьютер от того, что он загружает.</translation>
    </message>
    <message>
        <source>Pages are not shown: this system does not let the web engine protect the computer from them.</source>
        <translation>Страницы не показываются: эта система не даёт веб-движку защитить от них компьютер.</translation>
    </message>
</context>
<context>
    <name>EventFeed</name>
    <message>
        <source>Events</source>
        <translation>События</translation>
    </message>
    <message>
        <source>Show on the canvas</source>
        <translation>Показать на холсте</translation>
    </message>
</context>
<context>
    <name>EventList</name>
    <message>
        <source>Pick a project to see its events</source>
        <translation>Выберите проект, чтобы увидеть его события</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Загрузка…</translation>
    </message>
    <message>
        <source>Nothing yet</source>
        <translation>Пока ничего</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>События</translation>
    </message>
</context>
<context>
    <name>EventRow</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
</context>
<context>
    <name>EventsPage</name>
    <message>
        <source>Events</source>
        <translation>События</translation>
    </message>
</context>
<context>
    <name>ExportMenu</name>
    <message>
        <source>Picture (PNG)</source>
        <translation>Картинка (PNG)</translation>
    </message>
    <message>
        <source>Ctrl E</source>
        <translation>Ctrl E</translation>
    </message>
    <message>
        <source>Table (CSV)</source>
        <translation>Таблица (CSV)</translation>
    </message>
    <message>
        <source>Copy picture</source>
        <translation>Копировать картинку</translation>
    </message>
    <message>
        <source>Copy as table</source>
        <translation>Копировать как таблицу</translation>
    </message>
</context>
<context>
    <name>Feed</name>
    <message>
        <source>Conversation</source>
        <translation>Разговор</translation>
    </message>
</context>
<context>
    <name>FileChip</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Убрать %1</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find in the conversation</source>
        <translation>Найти в разговоре</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Не найдено</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Shift Enter</source>
        <translation>Shift Enter</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Дальше</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Close the search</source>
        <translation>Закрыть поиск</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
</context>
<context>
    <name>FunnelScene</name>
    <message>
        <source>Stage</source>
        <translation>Этап</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Количество</translation>
    </message>
    <message>
        <source>Conversion</source>
        <translation>Конверсия</translation>
    </message>
</context>
<context>
    <name>FunnelStage</name>
    <message>
        <source>%1 drop</source>
        <translation>потеря %1</translation>
    </message>
</context>
<context>
    <name>HistoryPopover</name>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>Nothing drawn yet</source>
        <translation>Пока ничего не нарисовано</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
</context>
<context>
    <name>HistorySteps</name>
    <message>
        <source>Earlier canvas</source>
        <translation>Предыдущий холст</translation>
    </message>
    <message>
        <source>Alt Left</source>
        <translation>Alt ←</translation>
    </message>
    <message>
        <source>Later canvas</source>
        <translation>Следующий холст</translation>
    </message>
    <message>
        <source>Alt Right</source>
        <translation>Alt →</translation>
    </message>
</context>
<context>
    <name>HttpExchange</name>
    <message>
        <source>The server ended the connection.</source>
        <translation>Сервер закрыл соединение.</translation>
    </message>
    <message>
        <source>The server redirected the request too many times.</source>
        <translation>Сервер перенаправил запрос слишком много раз.</translation>
    </message>
    <message>
        <source>The connection ended before the answer did.</source>
        <translation>Соединение прервалось раньше, чем кончился ответ.</translation>
    </message>
    <message>
        <source>The server redirected the request to an unsafe address.</source>
        <translation>Сервер перенаправил запрос на небезопасный адрес.</translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation>Сервер не ответил вовремя.</translation>
    </message>
    <message>
        <source>There is no network connection.</source>
        <translation>Нет подключения к сети.</translation>
    </message>
    <message>
        <source>The server&apos;s answer is too large.</source>
        <translation>Ответ сервера слишком велик.</translation>
    </message>
</context>
<context>
    <name>JumpButton</name>
    <message>
        <source>Jump to latest</source>
        <translation>К последнему сообщению</translation>
    </message>
    <message numerus="yes">
        <source>Jump to latest, %n new</source>
        <translation>
            <numerusform>К последнему, %n новое</numerusform>
            <numerusform>К последнему, %n новых</numerusform>
            <numerusform>К последнему, %n новых</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeyResultRow</name>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>LeaveDialog</name>
    <message>
        <source>Leave without saving?</source>
        <translation>Уйти без сохранения?</translation>
    </message>
    <message>
        <source>Something that you entered is not saved. It is lost when you leave now.</source>
        <translation>Не всё введённое сохранено. Если уйти сейчас, оно пропадёт.</translation>
    </message>
    <message>
        <source>Drop it and leave</source>
        <translation>Уйти без сохранения</translation>
    </message>
</context>
<context>
    <name>ListChip</name>
    <message>
        <source>Drop %1</source>
        <translation>Убрать %1</translation>
    </message>
</context>
<context>
    <name>LoadFailure</name>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
</context>
<context>
    <name>MainMenuView</name>
    <message>
        <source>Main menu</source>
        <translation>Главное меню</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>The workspace on this computer has stopped and is being started again. What you send waits for it.</source>
        <translation>Рабочее пространство на этом компьютере остановилось и запускается заново. Всё отправленное дождётся его.</translation>
    </message>
    <message>
        <source>You are offline. What you send waits for the connection.</source>
        <translation>Нет связи. Всё отправленное дождётся её.</translation>
    </message>
    <message>
        <source>Retry now</source>
        <translation>Повторить сейчас</translation>
    </message>
    <message>
        <source>KIV %1 is available.</source>
        <translation>Вышла версия KIV %1.</translation>
    </message>
    <message>
        <source>Open downloads</source>
        <translation>Открыть загрузки</translation>
    </message>
    <message>
        <source>Width of the rail</source>
        <translation>Ширина боковой панели</translation>
    </message>
    <message>
        <source>The workspace cannot start: %1</source>
        <translation>Рабочее пространство не запускается: %1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
</context>
<context>
    <name>MenuButton</name>
    <message>
        <source>Main menu</source>
        <translation>Главное меню</translation>
    </message>
</context>
<context>
    <name>MessageFiles</name>
    <message>
        <source>Open %1</source>
        <translation>Открыть %1</translation>
    </message>
</context>
<context>
    <name>MessageHead</name>
    <message>
        <source>with %1</source>
        <translation>вместе с %1</translation>
    </message>
    <message>
        <source>said in a call</source>
        <translation>сказано в звонке</translation>
    </message>
</context>
<context>
    <name>MessageMenu</name>
    <message>
        <source>Copy the message</source>
        <translation>Копировать сообщение</translation>
    </message>
    <message>
        <source>Ctrl C</source>
        <translation>Ctrl C</translation>
    </message>
    <message>
        <source>Show on the canvas</source>
        <translation>Показать на холсте</translation>
    </message>
    <message>
        <source>Ask again</source>
        <translation>Спросить снова</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Open %1, %2</source>
        <translation>Открыть: %1, %2</translation>
    </message>
</context>
<context>
    <name>MessageTail</name>
    <message>
        <source>Not sent. Try again</source>
        <translation>Не отправлено. Повторить</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Отправка…</translation>
    </message>
    <message>
        <source>Sent %1</source>
        <translation>Отправлено %1</translation>
    </message>
    <message>
        <source>Copy the message</source>
        <translation>Копировать сообщение</translation>
    </message>
    <message>
        <source>Show on the canvas</source>
        <translation>Показать на холсте</translation>
    </message>
    <message>
        <source>Ask again</source>
        <translation>Спросить снова</translation>
    </message>
    <message>
        <source>said in a call</source>
        <translation>сказано в звонке</translation>
    </message>
</context>
<context>
    <name>MicButton</name>
    <message>
        <source>Stop dictation</source>
        <translation>Остановить диктовку</translation>
    </message>
    <message>
        <source>Dictate</source>
        <translation>Диктовать</translation>
    </message>
    <message>
        <source>Alt and Down choose the microphone</source>
        <translation>Alt и стрелка вниз — выбор микрофона</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
</context>
<context>
    <name>MicMenu</name>
    <message>
        <source>Microphone</source>
        <translation>Микрофон</translation>
    </message>
    <message>
        <source>No microphone was found</source>
        <translation>Микрофон не найден</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Как в системе</translation>
    </message>
</context>
<context>
    <name>ModeEntry</name>
    <message>
        <source>Data sources</source>
        <translation>Источники данных</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Авто</translation>
    </message>
    <message>
        <source>Workspace only</source>
        <translation>Только своё</translation>
    </message>
    <message>
        <source>Ask first</source>
        <translation>Спросить</translation>
    </message>
    <message>
        <source>Agents pick what helps: connected sources, files and pages.</source>
        <translation>Агенты сами берут то, что поможет: подключённые источники, файлы и страницы.</translation>
    </message>
    <message>
        <source>Agents use the sources and files of this workspace, and nothing from outside.</source>
        <translation>Агенты берут источники и файлы этого рабочего пространства и ничего извне.</translation>
    </message>
    <message>
        <source>Agents name the source that they want to use, and wait for your yes.</source>
        <translation>Агенты называют нужный источник и ждут вашего согласия.</translation>
    </message>
    <message>
        <source>Set elsewhere: %1</source>
        <translation>Задано не здесь: %1</translation>
    </message>
    <message>
        <source>Unless told otherwise</source>
        <translation>Если не сказано иначе</translation>
    </message>
</context>
<context>
    <name>ModelRow</name>
    <message>
        <source>Provider</source>
        <translation>Поставщик</translation>
    </message>
    <message>
        <source>As in the workspace</source>
        <translation>Как в рабочем пространстве</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Модель</translation>
    </message>
</context>
<context>
    <name>Navigator</name>
    <message>
        <source>Projects and agents</source>
        <translation>Проекты и агенты</translation>
    </message>
</context>
<context>
    <name>NavigatorRow</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Новый проект</translation>
    </message>
    <message>
        <source>New agent</source>
        <translation>Новый агент</translation>
    </message>
    <message>
        <source>Find a project or agent</source>
        <translation>Найти проект или агента</translation>
    </message>
    <message>
        <source>Hide the agents of %1</source>
        <translation>Скрыть агентов: %1</translation>
    </message>
    <message>
        <source>Show the agents of %1</source>
        <translation>Показать агентов: %1</translation>
    </message>
</context>
<context>
    <name>NoticesSheet</name>
    <message>
        <source>Third-party notices</source>
        <translation>Сторонние компоненты</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>%1: %2. %3. %4</source>
        <translation>%1: %2. %3. %4</translation>
    </message>
</context>
<context>
    <name>NotificationsPage</name>
    <message>
        <source>Notifications</source>
        <translation>Уведомления</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Почта</translation>
    </message>
    <message>
        <source>A summary of what your agents did, and news about your projects, to your address.</source>
        <translation>Сводка о том, что сделали агенты, и новости проектов на ваш адрес.</translation>
    </message>
    <message>
        <source>Approvals</source>
        <translation>Согласования</translation>
    </message>
    <message>
        <source>A message whenever an agent waits for your approval.</source>
        <translation>Сообщение всякий раз, когда агент ждёт вашего согласия.</translation>
    </message>
</context>
<context>
    <name>OlderLink</name>
    <message>
        <source>Open the full conversation</source>
        <translation>Открыть весь разговор</translation>
    </message>
</context>
<context>
    <name>OptionCard</name>
    <message>
        <source>Recommended</source>
        <translation>Рекомендуется</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Поровну</translation>
    </message>
</context>
<context>
    <name>OwnMessage</name>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
</context>
<context>
    <name>PageBar</name>
    <message>
        <source>Open in the browser</source>
        <translation>Открыть в браузере</translation>
    </message>
    <message>
        <source>Earlier canvas</source>
        <translation>Предыдущий холст</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Обновить</translation>
    </message>
</context>
<context>
    <name>PageSheet</name>
    <message>
        <source>Loading %1</source>
        <translation>Загрузка: %1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
</context>
<context>
    <name>PaletteRow</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>PanelFrame</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>ParentChoice</name>
    <message>
        <source>Project</source>
        <translation>Проект</translation>
    </message>
    <message>
        <source>Project: %1</source>
        <translation>Проект: %1</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Проекты</translation>
    </message>
</context>
<context>
    <name>PasswordEntry</name>
    <message>
        <source>Hide the password</source>
        <translation>Скрыть пароль</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Показать пароль</translation>
    </message>
</context>
<context>
    <name>PastCall</name>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
</context>
<context>
    <name>PastCalls</name>
    <message>
        <source>No calls yet</source>
        <translation>Звонков ещё не было</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Загрузка…</translation>
    </message>
    <message>
        <source>The calls could not be loaded</source>
        <translation>Не удалось загрузить звонки</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>Звонки</translation>
    </message>
</context>
<context>
    <name>PastTranscript</name>
    <message>
        <source>Loading…</source>
        <translation>Загрузка…</translation>
    </message>
    <message>
        <source>Nothing was written down</source>
        <translation>Ничего не записано</translation>
    </message>
</context>
<context>
    <name>PeriodBars</name>
    <message>
        <source>In %1</source>
        <translation>Приход %1</translation>
    </message>
    <message>
        <source>Out %1</source>
        <translation>Расход %1</translation>
    </message>
    <message>
        <source>Balance %1</source>
        <translation>Остаток %1</translation>
    </message>
</context>
<context>
    <name>PickedFile</name>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>Файл «%1» не читается.</translation>
    </message>
    <message>
        <source>“%1” is larger than 10 MB.</source>
        <translation>Файл «%1» больше 10 МБ.</translation>
    </message>
    <message>
        <source>Only files on this computer can be attached.</source>
        <translation>Прикрепить можно только файлы с этого компьютера.</translation>
    </message>
    <message>
        <source>“%1” is a folder: attach the files in it.</source>
        <translation>«%1» — папка: прикрепите файлы из неё.</translation>
    </message>
    <message>
        <source>“%1” is not a kind of file that can be attached.</source>
        <translation>Файлы такого вида, как «%1», прикрепить нельзя.</translation>
    </message>
</context>
<context>
    <name>PictureRow</name>
    <message>
        <source>Uploading…</source>
        <translation>Загрузка…</translation>
    </message>
    <message>
        <source>Change picture</source>
        <translation>Сменить фото</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
</context>
<context>
    <name>PlanPage</name>
    <message>
        <source>Plan</source>
        <translation>Тариф</translation>
    </message>
    <message>
        <source>No plan</source>
        <translation>Без тарифа</translation>
    </message>
    <message>
        <source>Without a limit of tokens</source>
        <translation>Без ограничения токенов</translation>
    </message>
    <message>
        <source>Tokens: %1</source>
        <translation>Токенов: %1</translation>
    </message>
    <message>
        <source>Wallet</source>
        <translation>Кошелёк</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Баланс</translation>
    </message>
    <message>
        <source>Available credits</source>
        <translation>Доступно кредитов</translation>
    </message>
    <message>
        <source>Plan and wallet could not be loaded</source>
        <translation>Не удалось загрузить тариф и кошелёк</translation>
    </message>
</context>
<context>
    <name>PlotLegend</name>
    <message>
        <source>In</source>
        <translation>Приход</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Расход</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Остаток</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Profile</source>
        <translation>Профиль</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Полное имя</translation>
    </message>
    <message>
        <source>Handle</source>
        <translation>Псевдоним</translation>
    </message>
    <message>
        <source>How others mention you</source>
        <translation>Как вас упоминают</translation>
    </message>
    <message>
        <source>Company name</source>
        <translation>Компания</translation>
    </message>
    <message>
        <source>Company website</source>
        <translation>Сайт компании</translation>
    </message>
    <message>
        <source>company.example</source>
        <translation>company.example</translation>
    </message>
    <message>
        <source>Company size</source>
        <translation>Размер компании</translation>
    </message>
    <message>
        <source>Industry</source>
        <translation>Отрасль</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Должность</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Часовой пояс</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Страна</translation>
    </message>
    <message>
        <source>Preferred sectors</source>
        <translation>Интересные отрасли</translation>
    </message>
    <message>
        <source>Add a sector</source>
        <translation>Добавить отрасль</translation>
    </message>
</context>
<context>
    <name>ProfilePopover</name>
    <message>
        <source>Account</source>
        <translation>Аккаунт</translation>
    </message>
    <message>
        <source>Ctrl ,</source>
        <translation>Ctrl ,</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Уведомления</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>Desktop notifications</source>
        <translation>Уведомления на экране</translation>
    </message>
</context>
<context>
    <name>Rail</name>
    <message>
        <source>Rail</source>
        <translation>Боковая панель</translation>
    </message>
    <message>
        <source>Height of the list of projects and agents</source>
        <translation>Высота списка проектов и агентов</translation>
    </message>
    <message>
        <source>Conversation</source>
        <translation>Разговор</translation>
    </message>
    <message>
        <source>Open the full conversation</source>
        <translation>Открыть весь разговор</translation>
    </message>
    <message>
        <source>Enter to send, Shift+Enter for a new line</source>
        <translation>Enter — отправить, Shift+Enter — новая строка</translation>
    </message>
</context>
<context>
    <name>RailSamples</name>
    <message>
        <source>Sample projects</source>
        <translation>Примеры проектов</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Проекты</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Пример</translation>
    </message>
    <message>
        <source>Sign in to see yours</source>
        <translation>Войдите, чтобы увидеть свои</translation>
    </message>
</context>
<context>
    <name>RailSkeleton</name>
    <message>
        <source>Projects</source>
        <translation>Проекты</translation>
    </message>
</context>
<context>
    <name>RefinePopover</name>
    <message>
        <source>What should change?</source>
        <translation>Что изменить?</translation>
    </message>
</context>
<context>
    <name>ReplyChips</name>
    <message>
        <source>Replies</source>
        <translation>Варианты ответа</translation>
    </message>
</context>
<context>
    <name>ReportHead</name>
    <message>
        <source>Highlights</source>
        <translation>Главное</translation>
    </message>
</context>
<context>
    <name>RetroColumn</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>ReviewPage</name>
    <message>
        <source>It is there</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Is this right?</source>
        <translation>Всё верно?</translation>
    </message>
    <message>
        <source>Its chat is waiting for you.</source>
        <translation>Чат уже ждёт вас.</translation>
    </message>
    <message>
        <source>Go back to change anything; nothing is lost on the way.</source>
        <translation>Можно вернуться и изменить что угодно: ничего не пропадёт.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Ring</name>
    <message>
        <source>total</source>
        <translation>всего</translation>
    </message>
</context>
<context>
    <name>SSEFrameParser</name>
    <message>
        <source>The server sent an event that is too large.</source>
        <translation>Сервер прислал слишком большое событие.</translation>
    </message>
</context>
<context>
    <name>SampleGallery</name>
    <message>
        <source>Sample</source>
        <translation>Пример</translation>
    </message>
    <message>
        <source>Not your data</source>
        <translation>Не ваши данные</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Примеры</translation>
    </message>
</context>
<context>
    <name>SaveNote</name>
    <message>
        <source>Saving…</source>
        <translation>Сохранение…</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Сохранено</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Вернуть</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Вернуть: %1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Try again: %1</source>
        <translation>Повторить: %1</translation>
    </message>
</context>
<context>
    <name>ScopeButton</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>ScopePopover</name>
    <message>
        <source>Find a project or agent</source>
        <translation>Найти проект или агента</translation>
    </message>
    <message>
        <source>Projects and agents</source>
        <translation>Проекты и агенты</translation>
    </message>
    <message>
        <source>Nobody is called that</source>
        <translation>Никого с таким именем нет</translation>
    </message>
    <message>
        <source>Show all agents</source>
        <translation>Показать всех агентов</translation>
    </message>
    <message>
        <source>Show past calls</source>
        <translation>Показать прошлые звонки</translation>
    </message>
    <message>
        <source>New project or agent</source>
        <translation>Новый проект или агент</translation>
    </message>
</context>
<context>
    <name>ScopeRow</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>SecurityPage</name>
    <message>
        <source>Change password</source>
        <translation>Сменить пароль</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Текущий пароль</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Новый пароль</translation>
    </message>
    <message>
        <source>At least 8 characters</source>
        <translation>Не короче 8 символов</translation>
    </message>
    <message>
        <source>New password again</source>
        <translation>Новый пароль ещё раз</translation>
    </message>
    <message>
        <source>This device</source>
        <translation>Это устройство</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>Your conversations and projects stay in the workspace.</source>
        <translation>Разговоры и проекты останутся в рабочем пространстве.</translation>
    </message>
</context>
<context>
    <name>SendButton</name>
    <message>
        <source>Stop the answer</source>
        <translation>Остановить ответ</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Отправить</translation>
    </message>
</context>
<context>
    <name>SheetFoot</name>
    <message>
        <source>Show message</source>
        <translation>Показать сообщение</translation>
    </message>
</context>
<context>
    <name>ShortcutsSheet</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>SignInSheet</name>
    <message>
        <source>Create your account</source>
        <translation>Создайте аккаунт</translation>
    </message>
    <message>
        <source>Sign in to KIV</source>
        <translation>Вход в KIV</translation>
    </message>
    <message>
        <source>Your first project is a question away.</source>
        <translation>До первого проекта один вопрос.</translation>
    </message>
    <message>
        <source>Your projects and agents are waiting.</source>
        <translation>Проекты и агенты ждут вас.</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Почта</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Create the account</source>
        <translation>Создать аккаунт</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Войти</translation>
    </message>
    <message>
        <source>Try the sample workspace</source>
        <translation>Открыть пробное пространство</translation>
    </message>
    <message>
        <source>Already have an account?</source>
        <translation>Уже есть аккаунт?</translation>
    </message>
    <message>
        <source>New here?</source>
        <translation>Впервые здесь?</translation>
    </message>
    <message>
        <source>Create an account</source>
        <translation>Создать аккаунт</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>SourcesPage</name>
    <message>
        <source>Data sources</source>
        <translation>Источники данных</translation>
    </message>
    <message>
        <source>What agents use unless you tell them otherwise in a conversation.</source>
        <translation>Чем пользуются агенты, если в разговоре не сказано иначе.</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Модели</translation>
    </message>
    <message>
        <source>Who thinks for each part of the work. What is empty follows the workspace.</source>
        <translation>Кто думает за каждую часть работы. Незаполненное — как в рабочем пространстве.</translation>
    </message>
    <message>
        <source>Preferred</source>
        <translation>Основная</translation>
    </message>
    <message>
        <source>For everything without a model of its own</source>
        <translation>Для всего, у чего нет своей модели</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Чат</translation>
    </message>
    <message>
        <source>Answers in conversations</source>
        <translation>Отвечает в разговорах</translation>
    </message>
    <message>
        <source>Orchestrator</source>
        <translation>Оркестратор</translation>
    </message>
    <message>
        <source>Plans and hands out work</source>
        <translation>Планирует и раздаёт работу</translation>
    </message>
    <message>
        <source>Pipeline</source>
        <translation>Конвейер</translation>
    </message>
    <message>
        <source>Runs tasks in the background</source>
        <translation>Выполняет задачи в фоне</translation>
    </message>
    <message>
        <source>Browser summary</source>
        <translation>Обзор страниц</translation>
    </message>
    <message>
        <source>Sums up pages that agents read</source>
        <translation>Пересказывает страницы, которые читают агенты</translation>
    </message>
    <message>
        <source>Compaction</source>
        <translation>Сжатие</translation>
    </message>
    <message>
        <source>Shortens long conversations</source>
        <translation>Сокращает длинные разговоры</translation>
    </message>
</context>
<context>
    <name>SpokenEvent</name>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
</context>
<context>
    <name>SpokenLine</name>
    <message>
        <source>You</source>
        <translation>Вы</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>StackedBar</name>
    <message>
        <source>%1 more</source>
        <translation>ещё %1</translation>
    </message>
</context>
<context>
    <name>StatusRow</name>
    <message>
        <source>On track</source>
        <translation>По плану</translation>
    </message>
    <message>
        <source>Behind</source>
        <translation>Отстаёт</translation>
    </message>
    <message>
        <source>Blocked</source>
        <translation>Стоит</translation>
    </message>
    <message>
        <source>target %1%</source>
        <translation>цель %1 %</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>StatusScene</name>
    <message>
        <source>On track</source>
        <translation>По плану</translation>
    </message>
    <message>
        <source>Behind</source>
        <translation>Отстаёт</translation>
    </message>
</context>
<context>
    <name>StepRow</name>
    <message>
        <source>%1, current step</source>
        <translation>%1, текущий шаг</translation>
    </message>
    <message>
        <source>%1, done</source>
        <translation>%1, готово</translation>
    </message>
</context>
<context>
    <name>Stepper</name>
    <message>
        <source>Smaller</source>
        <translation>Меньше</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Больше</translation>
    </message>
</context>
<context>
    <name>StorageBanners</name>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Open the folder</source>
        <translation>Открыть папку</translation>
    </message>
</context>
<context>
    <name>Strip</name>
    <message>
        <source>Rail</source>
        <translation>Боковая панель</translation>
    </message>
    <message>
        <source>Projects and agents</source>
        <translation>Проекты и агенты</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Новый проект</translation>
    </message>
</context>
<context>
    <name>TableBlock</name>
    <message>
        <source>Copy the table</source>
        <translation>Копировать таблицу</translation>
    </message>
</context>
<context>
    <name>ToolsPage</name>
    <message>
        <source>Tools and autonomy</source>
        <translation>Инструменты и самостоятельность</translation>
    </message>
    <message>
        <source>What it works with, and when it asks you first.</source>
        <translation>С чем он работает и когда сначала спрашивает вас.</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Инструменты</translation>
    </message>
    <message>
        <source>Autonomy</source>
        <translation>Самостоятельность</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Window</source>
        <translation>Окно</translation>
    </message>
    <message>
        <source>Show the rail</source>
        <translation>Показать боковую панель</translation>
    </message>
    <message>
        <source>Hide the rail</source>
        <translation>Скрыть боковую панель</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Звонок</translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>События</translation>
    </message>
    <message>
        <source>Chat dock</source>
        <translation>Панель чата</translation>
    </message>
    <message>
        <source>Profile of %1</source>
        <translation>Профиль: %1</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Войти</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Завершить звонок</translation>
    </message>
</context>
<context>
    <name>Transcript</name>
    <message>
        <source>You</source>
        <translation>Вы</translation>
    </message>
    <message>
        <source>with %1</source>
        <translation>вместе с %1</translation>
    </message>
    <message>
        <source>not sent</source>
        <translation>не отправлено</translation>
    </message>
</context>
<context>
    <name>TranscriptList</name>
    <message>
        <source>Transcript</source>
        <translation>Запись</translation>
    </message>
</context>
<context>
    <name>TranscriptPanel</name>
    <message>
        <source>Transcript</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Скопировано</translation>
    </message>
    <message>
        <source>Copy the transcript</source>
        <translation>Скопировать запись</translation>
    </message>
    <message>
        <source>What is said shows here</source>
        <translation>Здесь появится сказанное</translation>
    </message>
</context>
<context>
    <name>TypeBar</name>
    <message>
        <source>Type instead</source>
        <translation>Написать</translation>
    </message>
</context>
<context>
    <name>UnreadLine</name>
    <message>
        <source>New</source>
        <translation>Новое</translation>
    </message>
</context>
<context>
    <name>VoicePage</name>
    <message>
        <source>Voice style</source>
        <translation>Стиль речи</translation>
    </message>
    <message>
        <source>How agents write and speak to you.</source>
        <translation>Как агенты пишут вам и говорят с вами.</translation>
    </message>
    <message>
        <source>Communication style</source>
        <translation>Стиль общения</translation>
    </message>
    <message>
        <source>Preferred language</source>
        <translation>Язык ответов</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>Рабочие часы</translation>
    </message>
    <message>
        <source>Outside of them agents keep calls and questions for later.</source>
        <translation>Вне этих часов агенты откладывают звонки и вопросы.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>С</translation>
    </message>
    <message>
        <source>To</source>
        <translation>До</translation>
    </message>
</context>
<context>
    <name>WholeBar</name>
    <message>
        <source>total</source>
        <translation>всего</translation>
    </message>
</context>
<context>
    <name>WizardFoot</name>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Шаг %1 из %2</translation>
    </message>
    <message>
        <source>Open the chat</source>
        <translation>Открыть чат</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Дальше</translation>
    </message>
    <message>
        <source>Create the project</source>
        <translation>Создать проект</translation>
    </message>
    <message>
        <source>Create the agent</source>
        <translation>Создать агента</translation>
    </message>
</context>
<context>
    <name>WizardSteps</name>
    <message>
        <source>New project</source>
        <translation>Новый проект</translation>
    </message>
    <message>
        <source>New agent</source>
        <translation>Новый агент</translation>
    </message>
</context>
<context>
    <name>WorkStyle</name>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Doing</source>
        <translation>В работе</translation>
    </message>
    <message>
        <source>Blocked</source>
        <translation>Стоит</translation>
    </message>
    <message>
        <source>To do</source>
        <translation>Не начато</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
</context>
<context>
    <name>WorkloadRow</name>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>over 100%</source>
        <translation>больше 100 %</translation>
    </message>
    <message>
        <source>90–100%</source>
        <translation>90–100 %</translation>
    </message>
    <message>
        <source>under 90%</source>
        <translation>меньше 90 %</translation>
    </message>
</context>
<context>
    <name>WorkloadScene</name>
    <message>
        <source>under 90%</source>
        <translation>меньше 90 %</translation>
    </message>
    <message>
        <source>90–100%</source>
        <translation>90–100 %</translation>
    </message>
    <message>
        <source>over 100%</source>
        <translation>больше 100 %</translation>
    </message>
</context>
<context>
    <name>kiv::app::AnswerNotes</name>
    <message>
        <source>No answer came</source>
        <translation>Ответ не пришёл</translation>
    </message>
    <message>
        <source>The answer is there</source>
        <translation>Ответ готов</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::Notifier</name>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
</context>
<context>
    <name>kiv::store::AccountRoom</name>
    <message>
        <source>A change to your account was not saved. %1</source>
        <translation>Изменение в аккаунте не сохранено. %1</translation>
    </message>
    <message>
        <source>Choose a picture of yourself</source>
        <translation>Выберите свою фотографию</translation>
    </message>
</context>
<context>
    <name>kiv::store::AttachmentRoom</name>
    <message>
        <source>%1 Files left out: %2.</source>
        <translation>%1 Пропущено файлов: %2.</translation>
    </message>
    <message>
        <source>There is nobody here yet to give files to.</source>
        <translation>Здесь пока некому передать файлы.</translation>
    </message>
    <message>
        <source>“%1” was not taken.</source>
        <translation>Файл «%1» не принят.</translation>
    </message>
</context>
<context>
    <name>kiv::store::CallRoom</name>
    <message>
        <source>Connection lost, connecting again</source>
        <translation>Связь прервалась, соединяем снова</translation>
    </message>
    <message>
        <source>Connection was lost for a moment</source>
        <translation>Связь ненадолго прерывалась</translation>
    </message>
    <message>
        <source>The call ended because its voice engine stopped working.</source>
        <translation>Звонок завершён: голосовой модуль перестал работать.</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>На удержании</translation>
    </message>
    <message>
        <source>It is not in the conversation that is shown now.</source>
        <translation>В показанном сейчас разговоре этого нет.</translation>
    </message>
    <message>
        <source>Was on hold</source>
        <translation>Было на удержании</translation>
    </message>
</context>
<context>
    <name>kiv::store::ChatDoor</name>
    <message>
        <source>The chat of this link is not in your workspace.</source>
        <translation>Чата из этой ссылки нет в вашем рабочем пространстве.</translation>
    </message>
</context>
<context>
    <name>kiv::store::CreateRoom</name>
    <message>
        <source>Kind</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Шаблон</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Tools and autonomy</source>
        <translation>Полномочия</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Проверка</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln character(s) too many</source>
        <translation>
            <numerusform>Лишний %Ln символ</numerusform>
            <numerusform>Лишние %Ln символа</numerusform>
            <numerusform>Лишние %Ln символов</numerusform>
        </translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Проект</translation>
    </message>
    <message>
        <source>A room of its own for people and agents</source>
        <translation>Отдельное место для людей и агентов</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>Агент</translation>
    </message>
    <message>
        <source>Somebody who does one kind of work</source>
        <translation>Тот, кто делает одну работу</translation>
    </message>
    <message>
        <source>No project</source>
        <translation>Без проекта</translation>
    </message>
    <message>
        <source>Works on its own</source>
        <translation>Работает сам по себе</translation>
    </message>
    <message>
        <source>Give it a name</source>
        <translation>Дайте название</translation>
    </message>
    <message>
        <source>Say what it does, in a word or two</source>
        <translation>Скажите в двух словах, что он делает</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Brief</source>
        <translation>Бриф</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Роль</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Инструменты</translation>
    </message>
    <message>
        <source>Autonomy</source>
        <translation>Самостоятельность</translation>
    </message>
    <message>
        <source>%1 is created, but the list could not be loaded: %2</source>
        <translation>Создано: %1, но список не загрузился: %2</translation>
    </message>
</context>
<context>
    <name>kiv::store::RailModel</name>
    <message>
        <source>Projects</source>
        <translation>Проекты</translation>
    </message>
    <message>
        <source>Agents</source>
        <translation>Агенты</translation>
    </message>
    <message>
        <source>Sees all projects and agents</source>
        <translation>Видит все проекты и всех агентов</translation>
    </message>
</context>
<context>
    <name>kiv::store::ScopeRoom</name>
    <message>
        <source>%1, %2</source>
        <comment>projects, agents</comment>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln project(s)</source>
        <translation>
            <numerusform>%Ln проект</numerusform>
            <numerusform>%Ln проекта</numerusform>
            <numerusform>%Ln проектов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln agent(s)</source>
        <translation>
            <numerusform>%Ln агент</numerusform>
            <numerusform>%Ln агента</numerusform>
            <numerusform>%Ln агентов</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kiv::store::StorageRoom</name>
    <message>
        <source>What you type is kept only while KIV runs, since it cannot be saved: %1.</source>
        <translation>Набранный текст хранится, только пока KIV работает: сохранить его не удаётся (%1).</translation>
    </message>
    <message>
        <source>You will have to sign in again after a restart, since the session cannot be saved: %1.</source>
        <translation>После перезапуска придётся войти снова: сеанс не удаётся сохранить (%1).</translation>
    </message>
    <message>
        <source>Settings cannot be saved: %1.</source>
        <translation>Настройки не удаётся сохранить: %1.</translation>
    </message>
    <message>
        <source>what was being typed</source>
        <translation>набранный текст</translation>
    </message>
    <message>
        <source>the workspace of this computer</source>
        <translation>рабочее пространство этого компьютера</translation>
    </message>
    <message>
        <source>the session</source>
        <translation>сеанс</translation>
    </message>
    <message>
        <source>the settings</source>
        <translation>настройки</translation>
    </message>
    <message>
        <source>Could not be read and was set aside: %1.</source>
        <translation>Не удалось прочитать и отложено в сторону: %1.</translation>
    </message>
</context>
<context>
    <name>kiv::ui::AgentLines</name>
    <message>
        <source>Sees all projects and agents</source>
        <translation>Видит все проекты и всех агентов</translation>
    </message>
    <message>
        <source>Agents without a project</source>
        <translation>Агенты без проекта</translation>
    </message>
</context>
<context>
    <name>kiv::ui::AnswerNews</name>
    <message>
        <source>%1 has answered: %2</source>
        <translation>%1 отвечает: %2</translation>
    </message>
</context>
<context>
    <name>kiv::ui::CallText</name>
    <message>
        <source>Yesterday, %1</source>
        <translation>Вчера, %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>Идёт</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Не состоялся</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Завершён</translation>
    </message>
    <message>
        <source>You: </source>
        <translation>Вы: </translation>
    </message>
</context>
<context>
    <name>kiv::ui::CanvasExport</name>
    <message>
        <source>Save the picture</source>
        <translation>Сохранить картинку</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Картинки (*.png)</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Сохранить таблицу</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Таблицы (*.csv)</translation>
    </message>
    <message>
        <source>Picture copied</source>
        <translation>Картинка скопирована</translation>
    </message>
    <message>
        <source>Table copied</source>
        <translation>Таблица скопирована</translation>
    </message>
    <message>
        <source>Copied as a picture and a table</source>
        <translation>Скопировано картинкой и таблицей</translation>
    </message>
    <message>
        <source>The picture could not be drawn</source>
        <translation>Не удалось нарисовать картинку</translation>
    </message>
</context>
<context>
    <name>kiv::ui::ChoiceModel</name>
    <message>
        <source>Only me</source>
        <translation>Только я</translation>
    </message>
    <message>
        <source>201–1,000</source>
        <translation>201–1000</translation>
    </message>
    <message>
        <source>1,001–5,000</source>
        <translation>1001–5000</translation>
    </message>
    <message>
        <source>More than 5,000</source>
        <translation>Больше 5000</translation>
    </message>
    <message>
        <source>Agriculture</source>
        <translation>Сельское хозяйство</translation>
    </message>
    <message>
        <source>Construction</source>
        <translation>Строительство</translation>
    </message>
    <message>
        <source>Consulting</source>
        <translation>Консалтинг</translation>
    </message>
    <message>
        <source>Education</source>
        <translation>Образование</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Энергетика</translation>
    </message>
    <message>
        <source>Finance</source>
        <translation>Финансы</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Здравоохранение</translation>
    </message>
    <message>
        <source>Hospitality</source>
        <translation>Гостиницы и рестораны</translation>
    </message>
    <message>
        <source>Law</source>
        <translation>Право</translation>
    </message>
    <message>
        <source>Manufacturing</source>
        <translation>Производство</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Медиа</translation>
    </message>
    <message>
        <source>Public services</source>
        <translation>Госуслуги</translation>
    </message>
    <message>
        <source>Real estate</source>
        <translation>Недвижимость</translation>
    </message>
    <message>
        <source>Retail</source>
        <translation>Розничная торговля</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Программное обеспечение</translation>
    </message>
    <message>
        <source>Telecommunications</source>
        <translation>Связь</translation>
    </message>
    <message>
        <source>Transport</source>
        <translation>Транспорт</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Другое</translation>
    </message>
    <message>
        <source>Concise: the answer first, few words</source>
        <translation>Кратко: сначала ответ, мало слов</translation>
    </message>
    <message>
        <source>Balanced: the answer with its reasons</source>
        <translation>Взвешенно: ответ и его причины</translation>
    </message>
    <message>
        <source>Detailed: everything that may matter</source>
        <translation>Подробно: всё, что может быть важно</translation>
    </message>
    <message>
        <source>Friendly: relaxed and personal</source>
        <translation>Дружески: просто и лично</translation>
    </message>
    <message>
        <source>Formal: as in a letter to a customer</source>
        <translation>Официально: как в письме клиенту</translation>
    </message>
</context>
<context>
    <name>kiv::ui::Commands</name>
    <message>
        <source>Command palette</source>
        <translation>Палитра команд</translation>
    </message>
    <message>
        <source>Main menu</source>
        <translation>Главное меню</translation>
    </message>
    <message>
        <source>Find in the conversation</source>
        <translation>Найти в разговоре</translation>
    </message>
    <message>
        <source>Export the picture</source>
        <translation>Сохранить картинку</translation>
    </message>
    <message>
        <source>The canvas alone</source>
        <translation>Только холст</translation>
    </message>
    <message>
        <source>Earlier canvas</source>
        <translation>Предыдущий холст</translation>
    </message>
    <message>
        <source>Later canvas</source>
        <translation>Следующий холст</translation>
    </message>
    <message>
        <source>Next area of the window</source>
        <translation>Следующая часть окна</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Крупнее текст</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Мельче текст</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Отправить</translation>
    </message>
    <message>
        <source>New line</source>
        <translation>Новая строка</translation>
    </message>
    <message>
        <source>Last message again, in an empty field</source>
        <translation>Прошлое сообщение, в пустом поле</translation>
    </message>
    <message>
        <source>Close what is on top, or stop the answer</source>
        <translation>Закрыть верхнее или остановить ответ</translation>
    </message>
    <message>
        <source>Next match</source>
        <translation>Следующее совпадение</translation>
    </message>
    <message>
        <source>Previous match</source>
        <translation>Предыдущее совпадение</translation>
    </message>
</context>
<context>
    <name>kiv::ui::ConversationExport</name>
    <message>
        <source>Save the conversation</source>
        <translation>Сохранить разговор</translation>
    </message>
    <message>
        <source>Markdown (*.md)</source>
        <translation>Markdown (*.md)</translation>
    </message>
    <message>
        <source>Conversation copied</source>
        <translation>Разговор скопирован</translation>
    </message>
</context>
<context>
    <name>kiv::ui::DialogChooser</name>
    <message>
        <source>Files (%1)</source>
        <translation>Файлы (%1)</translation>
    </message>
</context>
<context>
    <name>kiv::ui::FeedRows</name>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
</context>
<context>
    <name>kiv::ui::FileSaver</name>
    <message>
        <source>The file dialog does not open: %1</source>
        <translation>Окно выбора файла не открылось: %1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Сохранено: %1</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2</source>
        <translation>Не удалось сохранить %1: %2</translation>
    </message>
</context>
<context>
    <name>kiv::ui::PageHost</name>
    <message>
        <source>The part of KIV that shows pages is not installed.</source>
        <translation>Часть KIV, которая показывает страницы, не установлена.</translation>
    </message>
</context>
<context>
    <name>kiv::ui::PaletteModel</name>
    <message>
        <source>New Project</source>
        <translation>Новый проект</translation>
    </message>
    <message>
        <source>New Agent</source>
        <translation>Новый агент</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Страница</translation>
    </message>
    <message>
        <source>Agents</source>
        <translation>Агенты</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>События</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>Звонки</translation>
    </message>
</context>
<context>
    <name>kiv::ui::PictureCrop</name>
    <message>
        <source>“%1” is no picture that can be read.</source>
        <translation>«%1» — не картинка, которую можно прочитать.</translation>
    </message>
</context>
<context>
    <name>kiv::voice::LocalSpeech</name>
    <message>
        <source>The request has ended.</source>
        <translation>Запрос завершён.</translation>
    </message>
    <message>
        <source>No speech was heard.</source>
        <translation>Речи не слышно.</translation>
    </message>
</context>
<context>
    <name>kiv::voice::SpeechProcess</name>
    <message>
        <source>Speech recognition has stopped unexpectedly. Start it again.</source>
        <translation>Распознавание речи неожиданно остановилось. Запустите его снова.</translation>
    </message>
    <message>
        <source>Speech recognition has not started in time. Start it again.</source>
        <translation>Распознавание речи не запустилось вовремя. Запустите его снова.</translation>
    </message>
    <message>
        <source>Speech recognition gave an answer that makes no sense.</source>
        <translation>Распознавание речи дало непонятный ответ.</translation>
    </message>
</context>
<context>
    <name>kiv::web::EnginePage</name>
    <message>
        <source>This page opens in the browser.</source>
        <translation>Эта страница открывается в браузере.</translation>
    </message>
    <message>
        <source>The page did not load.</source>
        <translation>Страница не загрузилась.</translation>
    </message>
    <message>
        <source>The workspace answered with an error (%1).</source>
        <translation>Рабочее пространство ответило ошибкой (%1).</translation>
    </message>
    <message>
        <source>The workspace could not be reached.</source>
        <translation>Не удалось связаться с рабочим пространством.</translation>
    </message>
    <message>
        <source>The page did not load (%1).</source>
        <translation>Страница не загрузилась (%1).</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Страница перестала работать.</translation>
    </message>
</context>
</TS>
