<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="ru_RU">
<context>
    <name>Arcus2LumiPaySettingsDialog</name>
    <message>
        <source>Свойства Arcom ARCUS2 (LumiPay)</source>
        <translation>Arcom ARCUS2 properties (LumiPay)</translation>
    </message>
    <message>
        <source>Сервер авторизации:</source>
        <translation>Authorisation server:</translation>
    </message>
    <message>
        <source>ОК</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Отмена</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>Arcus2OrmaSettingsDialog</name>
    <message>
        <source>Свойства ARCOM Arcus2</source>
        <translation>ARCOM Arcus2 properties</translation>
    </message>
    <message>
        <source>Параметры подключения</source>
        <translation>Connection</translation>
    </message>
    <message>
        <source>Порт:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Скорость:</source>
        <translation>Speed:</translation>
    </message>
    <message>
        <source>Имя файла устройства:</source>
        <translation>Device file name:</translation>
    </message>
    <message>
        <source>VID и PID:</source>
        <translation>VID and PID:</translation>
    </message>
    <message>
        <source>VID</source>
        <translation>VID</translation>
    </message>
    <message>
        <source>HHHH</source>
        <translation>HHHH</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>PID</source>
        <translation>PID</translation>
    </message>
    <message>
        <source>ОК</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Отмена</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>Arcus2SettingsDialog</name>
    <message>
        <source>Свойства Arcom ARCUS2</source>
        <translation>Arcom ARCUS2 properties</translation>
    </message>
    <message>
        <source>Код операции закрытия смены:</source>
        <translation>Operation code for closing the shift:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Код операции печати журнала:</source>
        <translation>Operation code for printing the journal:</translation>
    </message>
    <message>
        <source>Отмена</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:8pt; font-weight:600;&quot;&gt;Ошибка: здесь сообщение об ошибке в параметрах&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:8pt; font-weight:600;&quot;&gt;Error: an error in the settings is told here&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Коды операций не могут совпадать</source>
        <translation>The operation codes must not be the same</translation>
    </message>
</context>
<context>
    <name>CommissionAdditionDialog</name>
    <message>
        <source>Выбор способа начисления комиссии</source>
        <translation>How the commission is charged</translation>
    </message>
    <message>
        <source>Зачислить 95.00 р + комиссия 5.00 р = 100.00 р</source>
        <translation>Credit 95.00 RUB + commission 5.00 RUB = 100.00 RUB</translation>
    </message>
    <message>
        <source>Способ начисления комиссии</source>
        <translation>The commission is</translation>
    </message>
    <message>
        <source>Комиссия включена в сумму</source>
        <translation>Included in the sum</translation>
    </message>
    <message>
        <source>Комиссия добавляется к сумме</source>
        <translation>Added to the sum</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Ошибка: здесь сообщение об ошибке в параметрах&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Error: an error in the settings is told here&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Отмена</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>%1:Коммиссия включена в сумму;%2:Коммиссия добавляется к сумме;</source>
        <translation>%1:Included in the sum;%2:Added to the sum;</translation>
    </message>
    <message>
        <source>Зачислить %4%1 р.%5 + комиссия %2 р. = %3 р.</source>
        <translation>Credit %4%1 RUB%5 + commission %2 RUB = %3 RUB</translation>
    </message>
    <message>
        <source>Сумма недостаточна для проведения платежа</source>
        <translation>The sum is not enough for the payment</translation>
    </message>
    <message>
        <source>Недопустимая сумма</source>
        <translation>The sum is not allowed</translation>
    </message>
</context>
<context>
    <name>CyberPlatSettingsDialog</name>
    <message>
        <source>Свойства CyberPlat</source>
        <translation>CyberPlat properties</translation>
    </message>
    <message>
        <source>Параметры связи с сервером</source>
        <translation>Connection to the server</translation>
    </message>
    <message>
        <source>Адрес сервера:</source>
        <translation>Server address:</translation>
    </message>
    <message>
        <source>Таймаут проверки
 статуса:</source>
        <translation>Status check
 time-out:</translation>
    </message>
    <message>
        <source> сек</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Использовать прокси-сервер</source>
        <translation>Use a proxy server</translation>
    </message>
    <message>
        <source>URL прокси-
сервера:</source>
        <translation>Proxy server
URL:</translation>
    </message>
    <message>
        <source>Порт прокси-
сервера:</source>
        <translation>Proxy server
port:</translation>
    </message>
    <message>
        <source>Параметры кассы</source>
        <translation>Cash register</translation>
    </message>
    <message>
        <source>Код дилера:</source>
        <translation>Dealer code:</translation>
    </message>
    <message>
        <source>Код точки
приема:</source>
        <translation>Point of
sale code:</translation>
    </message>
    <message>
        <source>Код оператора:</source>
        <translation>Operator code:</translation>
    </message>
    <message>
        <source>Пароль
закрытого ключа:</source>
        <translation>Private key
password:</translation>
    </message>
    <message>
        <source>Серийный номер
открытого ключа:</source>
        <translation>Public key
serial number:</translation>
    </message>
    <message>
        <source>ОК</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Отмена</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Ошибка: </source>
        <translation>Error: </translation>
    </message>
    <message>
        <source>https://payments.cyberplat.example/cgi-bin/es</source>
        <translation>https://payments.cyberplat.example/cgi-bin/es</translation>
    </message>
    <message>
        <source>localhost</source>
        <translation>localhost</translation>
    </message>
    <message>
        <source>Не указан адрес сервера</source>
        <translation>The server address is missing</translation>
    </message>
    <message>
        <source>Не указан адрес прокси-сервера</source>
        <translation>The proxy server address is missing</translation>
    </message>
    <message>
        <source>Не указан пароль ключа</source>
        <translation>The password of the key is missing</translation>
    </message>
</context>
<context>
    <name>DialogAbout</name>
    <message>
        <source>О программе</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Наш Web-сайт:</source>
        <translation>Our website:</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.orma-drivers.example&quot;&gt;www.orma-drivers.example&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;https://www.orma-drivers.example&quot;&gt;www.orma-drivers.example&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Информация:</source>
        <translation>Information:</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;mailto:info@orma-drivers.example&quot;&gt;info@orma-drivers.example&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;mailto:info@orma-drivers.example&quot;&gt;info@orma-drivers.example&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Техподдержка:</source>
        <translation>Support:</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;mailto:support@orma-drivers.example&quot;&gt;support@orma-drivers.example&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;mailto:support@orma-drivers.example&quot;&gt;support@orma-drivers.example&lt;/a&gt;</translation>
    </message>
    <message>
        <source>driver info here</source>
        <translation>driver info here</translation>
    </message>
    <message>
        <source>gui info here</source>
        <translation>gui info here</translation>
    </message>
    <message>
        <source>Сторонние библиотеки:</source>
        <translation>Third-party libraries:</translation>
    </message>
    <message>
        <source>Сторонние библиотеки</source>
        <translation>Third-party libraries</translation>
    </message>
    <message>
        <source>Библиотека</source>
        <translation>Library</translation>
    </message>
    <message>
        <source>Версия</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Лицензия</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>© ОРМА. Библиотека распространяется по лицензии GNU LGPL 2.1 или более поздней.</source>
        <translation>© ORMA. The library is distributed under the GNU LGPL 2.1 or later.</translation>
    </message>
    <message>
        <source>#header_container{background-color: rgb(255, 255, 255);}</source>
        <translation>#header_container{background-color: rgb(255, 255, 255);}</translation>
    </message>
</context>
<context>
    <name>InpasLumiPaySettingsDialog</name>
    <message>
        <source>Свойства Inpas SmartSale (LumiPay)</source>
        <translation>Inpas SmartSale properties (LumiPay)</translation>
    </message>
    <message>
        <source>Номер терминала:</source>
        <translation>Terminal number:</translation>
    </message>
    <message>
        <source>Сервер авторизации:</source>
        <translation>Authorisation server:</translation>
    </message>
    <message>
        <source>ОК</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Отмена</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>InpasOrmaSettingsDialog</name>
    <message>
        <source>Свойства INPAS SmartSale</source>
        <translation>INPAS SmartSale properties</translation>
    </message>
    <message>
        <source>Параметры подключения</source>
        <translation>Connection</translation>
    </message>
    <message>
        <source>Номер терминала:</source>
        <translation>Terminal number:</translation>
    </message>
    <message>
        <source>Порт:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Скорость:</source>
        <translation>Speed:</translation>
    </message>
    <message>
        <source>Имя файла устройства:</source>
        <translation>Device file name:</translation>
    </message>
    <message>
        <source>VID и PID:</source>
        <translation>VID and PID:</translation>
    </message>
    <message>
        <source>VID</source>
        <translation>VID</translation>
    </message>
    <message>
        <source>HHHH</source>
        <translation>HHHH</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>PID</source>
        <translation>PID</translation>
    </message>
    <message>
        <source>ОК</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Отмена</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>OperatorDialog</name>
    <message>
        <source>Оператор</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>Параметры обмена с АС</source>
        <translation>Exchange with the payment system</translation>
    </message>
    <message>
        <source>Код:</source>
        <translation>Code:</translation>
    </message>
    <message>
        <source>Название:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Шлюз:</source>
        <translation>Gateway:</translation>
    </message>
    <message>
        <source>Дополнительный
параметр №1:</source>
        <translation>Additional
parameter 1:</translation>
    </message>
    <message>
        <source>Маска №1:</source>
        <translation>Mask 1:</translation>
    </message>
    <message>
        <source>Дополнительный
параметр №2:</source>
        <translation>Additional
parameter 2:</translation>
    </message>
    <message>
        <source>Маска №2:</source>
        <translation>Mask 2:</translation>
    </message>
    <message>
        <source>Минимальный платеж:</source>
        <translation>Minimum payment:</translation>
    </message>
    <message>
        <source>Максимальный платеж:</source>
        <translation>Maximum payment:</translation>
    </message>
    <message>
        <source>Указание комиссии:</source>
        <translation>Commission given as:</translation>
    </message>
    <message>
        <source>Начисление комиссии:</source>
        <translation>Commission charged:</translation>
    </message>
    <message>
        <source>Значение комиссии:</source>
        <translation>Commission value:</translation>
    </message>
    <message>
        <source>Идентификаторы товаров кассового ПО</source>
        <translation>Ware codes of the cash register software</translation>
    </message>
    <message>
        <source>Идентификатор 
зачисленной суммы:</source>
        <translation>Code of the 
credited sum:</translation>
    </message>
    <message>
        <source>Идентификатор
комиссии:</source>
        <translation>Code of the
commission:</translation>
    </message>
    <message>
        <source>ОК</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Отмена</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Ошибка: </source>
        <translation>Error: </translation>
    </message>
    <message>
        <source>%1:Сумма;%2:Процент;</source>
        <translation>%1:Amount;%2:Per cent;</translation>
    </message>
    <message>
        <source>%1:Включена в сумму;%2:Добавляется к сумме;%3:Запрос к кассиру;</source>
        <translation>%1:Included in the sum;%2:Added to the sum;%3:Ask the cashier;</translation>
    </message>
    <message>
        <source>%1:Не запрашивается;%2:Номер счета;%3:Номер телефона;%4:Логин;%5:Код;</source>
        <translation>%1:Not asked for;%2:Account number;%3:Phone number;%4:Login;%5:Code;</translation>
    </message>
    <message>
        <source>Не указано название</source>
        <translation>The name is missing</translation>
    </message>
    <message>
        <source>Не указан код</source>
        <translation>The code is missing</translation>
    </message>
    <message>
        <source>Минимальный платеж не может быть больше максимального</source>
        <translation>The minimum payment must not be above the maximum</translation>
    </message>
</context>
<context>
    <name>OperatorListDialog</name>
    <message>
        <source>Операторы</source>
        <translation>Operators</translation>
    </message>
    <message>
        <source>Добавить</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Изменить</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Удалить</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>ОК</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>OrmaSettingsDialog</name>
    <message>
        <source>TCP/IP</source>
        <translation>TCP/IP</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Файл устройства</source>
        <translation>Device file</translation>
    </message>
</context>
<context>
    <name>PaySystemDialog</name>
    <message>
        <source>Свойства</source>
        <translation>Properties</translation>
    </message>
    <message>
        <source>Параметры системы</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Протокол АС:</source>
        <translation>Protocol:</translation>
    </message>
    <message>
        <source>Каталог обмена АС:</source>
        <translation>Exchange directory:</translation>
    </message>
    <message>
        <source>Выбрать каталог обмена АС</source>
        <translation>Choose the exchange directory</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Время ожидания АС:</source>
        <translation>Time-out:</translation>
    </message>
    <message>
        <source> сек</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Слип</source>
        <translation>Slip</translation>
    </message>
    <message>
        <source>Параметры АС</source>
        <translation>Protocol settings</translation>
    </message>
    <message>
        <source>Операторы</source>
        <translation>Operators</translation>
    </message>
    <message>
        <source>ОК</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Отмена</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>О программе</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Укажите каталог обмена с АС</source>
        <translation>Choose the exchange directory</translation>
    </message>
    <message>
        <source>Каталог обмена с АС не существует</source>
        <translation>The exchange directory does not exist</translation>
    </message>
    <message>
        <source>Настройки драйвера не читаются. ОК заменит их, Отмена оставит как есть.</source>
        <translation>The driver&apos;s settings cannot be read. OK replaces them, Cancel leaves them as they are.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>[%1] %2</source>
        <translation>[%1] %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (%2 %3)</source>
        <translation>%1 (%2 %3)</translation>
    </message>
    <message>
        <source>%1 (%2:%3)</source>
        <translation>%1 (%2:%3)</translation>
    </message>
    <message>
        <source>.orma</source>
        <translation>.orma</translation>
    </message>
    <message>
        <source>drivers9</source>
        <translation>drivers9</translation>
    </message>
    <message>
        <source>%1:Средствами ПК;%2:Модем ККТ;</source>
        <translation>%1:Through the computer;%2:Cash register&apos;s modem;</translation>
    </message>
    <message>
        <source>1200:1200 бод;2400:2400 бод;4800:2400 бод;9600:9600 бод;19200:19200 бод;38400:38400 бод;57600:57600 бод;115200:115200 бод;</source>
        <translation>1200:1200 baud;2400:2400 baud;4800:2400 baud;9600:9600 baud;19200:19200 baud;38400:38400 baud;57600:57600 baud;115200:115200 baud;</translation>
    </message>
    <message>
        <source>Ошибка</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Ошибка выбора способа начисления комиссии</source>
        <translation>Choosing how the commission is charged failed</translation>
    </message>
    <message>
        <source>Ошибка настройки свойств</source>
        <translation>Setting the properties failed</translation>
    </message>
    <message>
        <source>Ошибка получения параметров платежа</source>
        <translation>Getting the data of the payment failed</translation>
    </message>
    <message>
        <source>Подтверждение</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>Ошибка подтверждения платежа</source>
        <translation>Confirming the payment failed</translation>
    </message>
    <message>
        <source>Оплата</source>
        <translation>Payment</translation>
    </message>
    <message>
        <source>Возврат</source>
        <translation>Refund</translation>
    </message>
    <message>
        <source>Отмена оплаты</source>
        <translation>Payment cancellation</translation>
    </message>
    <message>
        <source>Отмена возврата</source>
        <translation>Refund cancellation</translation>
    </message>
    <message>
        <source>Активация БЕЗ суммы</source>
        <translation>Activation WITHOUT a sum</translation>
    </message>
    <message>
        <source>Активация С суммой</source>
        <translation>Activation WITH a sum</translation>
    </message>
    <message>
        <source>Бонусы и скидка</source>
        <translation>Bonuses and discount</translation>
    </message>
    <message>
        <source>Внесение предоплаты</source>
        <translation>Prepayment</translation>
    </message>
    <message>
        <source>Просмотр баланса</source>
        <translation>Balance inquiry</translation>
    </message>
    <message>
        <source>Оплата услуг</source>
        <translation>Payment for services</translation>
    </message>
    <message>
        <source>Оплата услуг картой</source>
        <translation>Payment for services by card</translation>
    </message>
    <message>
        <source>Проверка данных%1&lt;br&gt;Сумма: %2%3</source>
        <translation>Check the data%1&lt;br&gt;Sum: %2%3</translation>
    </message>
    <message>
        <source>&lt;br&gt;Операция: %1</source>
        <translation>&lt;br&gt;Operation: %1</translation>
    </message>
    <message>
        <source>&lt;br&gt;Ссылка: %1</source>
        <translation>&lt;br&gt;Reference: %1</translation>
    </message>
    <message>
        <source>Проверка данных&lt;br&gt;%1Оператор: %2&lt;br&gt;Сумма: %3&lt;br&gt;Комиссия: %4&lt;br&gt;Общая сумма: %5%6</source>
        <translation>Check the data&lt;br&gt;%1Operator: %2&lt;br&gt;Sum: %3&lt;br&gt;Commission: %4&lt;br&gt;Total: %5%6</translation>
    </message>
    <message>
        <source>Операция: %1&lt;br&gt;</source>
        <translation>Operation: %1&lt;br&gt;</translation>
    </message>
    <message>
        <source>&lt;br&gt;Номер телефона: %1</source>
        <translation>&lt;br&gt;Phone number: %1</translation>
    </message>
    <message>
        <source>&lt;br&gt;Номер счета: %1</source>
        <translation>&lt;br&gt;Account number: %1</translation>
    </message>
    <message>
        <source>Драйвер не дал текст целиком</source>
        <translation>The driver has not given the whole text</translation>
    </message>
</context>
<context>
    <name>SberbankLumiPaySettingsDialog</name>
    <message>
        <source>Свойства Арком АРКУС2</source>
        <translation>Arcom ARCUS2 properties</translation>
    </message>
    <message>
        <source>Сервер авторизации:</source>
        <translation>Authorisation server:</translation>
    </message>
    <message>
        <source>ОК</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Отмена</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>SberbankOrmaSettingsDialog</name>
    <message>
        <source>Свойства Сбербанк</source>
        <translation>Sberbank properties</translation>
    </message>
    <message>
        <source>Параметры подключения</source>
        <translation>Connection</translation>
    </message>
    <message>
        <source>Порт:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Скорость:</source>
        <translation>Speed:</translation>
    </message>
    <message>
        <source>Имя файла устройства:</source>
        <translation>Device file name:</translation>
    </message>
    <message>
        <source>IP-адрес:</source>
        <translation>IP address:</translation>
    </message>
    <message>
        <source>IP-порт:</source>
        <translation>IP port:</translation>
    </message>
    <message>
        <source>VID и PID:</source>
        <translation>VID and PID:</translation>
    </message>
    <message>
        <source>VID</source>
        <translation>VID</translation>
    </message>
    <message>
        <source>HHHH</source>
        <translation>HHHH</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>PID</source>
        <translation>PID</translation>
    </message>
    <message>
        <source>ОК</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Отмена</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>SelectOperatorDialog</name>
    <message>
        <source>Выбор оператора</source>
        <translation>Choice of the operator</translation>
    </message>
    <message>
        <source>Пожалуйста, выберите оператора:</source>
        <translation>Please choose the operator:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Отмена</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>SlipDialog</name>
    <message>
        <source>Свойства слипа</source>
        <translation>Slip properties</translation>
    </message>
    <message>
        <source>Заголовок</source>
        <translation>Header</translation>
    </message>
    <message>
        <source>Подвал</source>
        <translation>Footer</translation>
    </message>
    <message>
        <source>Скрывать часть номера карты</source>
        <translation>Hide a part of the card number</translation>
    </message>
    <message>
        <source>ОК</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Отмена</source>
        <translation>Cancel</translation>
    </message>
</context>
</TS>
