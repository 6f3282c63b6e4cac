<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>°C</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>°C</translation>
    </message>
    <message>
        <source>°F</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>°F</translation>
    </message>
    <message>
        <source>K</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>К</translation>
    </message>
    <message>
        <source>Bft</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>балл.</translation>
    </message>
    <message>
        <source>kn</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>уз</translation>
    </message>
    <message>
        <source>km/h</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>км/ч</translation>
    </message>
    <message>
        <source>m/s</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>м/с</translation>
    </message>
    <message>
        <source>mph</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>миль/ч</translation>
    </message>
    <message>
        <source>hPa</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>гПа</translation>
    </message>
    <message>
        <source>inHg</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>дюйм рт. ст.</translation>
    </message>
    <message>
        <source>Torr</source>
        <extracomment>Unit of pressure, short text and spoken text alike. One torr is one millimetre of mercury.</extracomment>
        <translation>мм рт. ст.</translation>
    </message>
    <message>
        <source>Torr</source>
        <comment>one</comment>
        <extracomment>Spoken only. The form for 1, 21, 31.</extracomment>
        <translation>миллиметр ртутного столба</translation>
    </message>
    <message>
        <source>Torr</source>
        <comment>few</comment>
        <extracomment>Spoken only. The form for 2, 3, 4, 22.</extracomment>
        <translation>миллиметра ртутного столба</translation>
    </message>
    <message>
        <source>Torr</source>
        <comment>many</comment>
        <extracomment>Spoken only. The form for 5, 11, 100.</extracomment>
        <translation>миллиметров ртутного столба</translation>
    </message>
    <message>
        <source>Torr</source>
        <comment>other</comment>
        <extracomment>Spoken only. The form for decimals (1,5).</extracomment>
        <translation>миллиметра ртутного столба</translation>
    </message>
    <message>
        <source>mm</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>мм</translation>
    </message>
    <message>
        <source>in</source>
        <extracomment>Inches (precipitation). Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>дюйм</translation>
    </message>
    <message>
        <source>m</source>
        <extracomment>Metres (altitude). Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>м</translation>
    </message>
    <message>
        <source>ft</source>
        <extracomment>Feet (altitude). Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>фут</translation>
    </message>
    <message>
        <source>degrees Celsius</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>градусов Цельсия</translation>
    </message>
    <message>
        <source>degrees Celsius</source>
        <comment>one</comment>
        <extracomment>The form for 1, 21, 31.</extracomment>
        <translation>градус Цельсия</translation>
    </message>
    <message>
        <source>degrees Celsius</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>градуса Цельсия</translation>
    </message>
    <message>
        <source>degrees Celsius</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>градуса Цельсия</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>градусов Фаренгейта</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <comment>one</comment>
        <extracomment>The form for 1, 21, 31.</extracomment>
        <translation>градус Фаренгейта</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>градуса Фаренгейта</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>градуса Фаренгейта</translation>
    </message>
    <message>
        <source>Kelvin</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>кельвинов</translation>
    </message>
    <message>
        <source>Kelvin</source>
        <comment>one</comment>
        <extracomment>The form for 1, 21, 31.</extracomment>
        <translation>кельвин</translation>
    </message>
    <message>
        <source>Kelvin</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>кельвина</translation>
    </message>
    <message>
        <source>Kelvin</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>кельвина</translation>
    </message>
    <message>
        <source>Beaufort</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>баллов по шкале Бофорта</translation>
    </message>
    <message>
        <source>Beaufort</source>
        <comment>one</comment>
        <extracomment>The form for 1, 21, 31.</extracomment>
        <translation>балл по шкале Бофорта</translation>
    </message>
    <message>
        <source>Beaufort</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>балла по шкале Бофорта</translation>
    </message>
    <message>
        <source>Beaufort</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>балла по шкале Бофорта</translation>
    </message>
    <message>
        <source>knots</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>узлов</translation>
    </message>
    <message>
        <source>knots</source>
        <comment>one</comment>
        <extracomment>The form for 1, 21, 31.</extracomment>
        <translation>узел</translation>
    </message>
    <message>
        <source>knots</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>узла</translation>
    </message>
    <message>
        <source>knots</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>узла</translation>
    </message>
    <message>
        <source>kilometres per hour</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>километров в час</translation>
    </message>
    <message>
        <source>kilometres per hour</source>
        <comment>one</comment>
        <extracomment>The form for 1, 21, 31.</extracomment>
        <translation>километр в час</translation>
    </message>
    <message>
        <source>kilometres per hour</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>километра в час</translation>
    </message>
    <message>
        <source>kilometres per hour</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>километра в час</translation>
    </message>
    <message>
        <source>metres per second</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>метров в секунду</translation>
    </message>
    <message>
        <source>metres per second</source>
        <comment>one</comment>
        <extracomment>The form for 1, 21, 31.</extracomment>
        <translation>метр в секунду</translation>
    </message>
    <message>
        <source>metres per second</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>метра в секунду</translation>
    </message>
    <message>
        <source>metres per second</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>метра в секунду</translation>
    </message>
    <message>
        <source>miles per hour</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>миль в час</translation>
    </message>
    <message>
        <source>miles per hour</source>
        <comment>one</comment>
        <extracomment>The form for 1, 21, 31.</extracomment>
        <translation>миля в час</translation>
    </message>
    <message>
        <source>miles per hour</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>мили в час</translation>
    </message>
    <message>
        <source>miles per hour</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>мили в час</translation>
    </message>
    <message>
        <source>hectopascals</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>гектопаскалей</translation>
    </message>
    <message>
        <source>hectopascals</source>
        <comment>one</comment>
        <extracomment>The form for 1, 21, 31.</extracomment>
        <translation>гектопаскаль</translation>
    </message>
    <message>
        <source>hectopascals</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>гектопаскаля</translation>
    </message>
    <message>
        <source>hectopascals</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>гектопаскаля</translation>
    </message>
    <message>
        <source>inches of mercury</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>дюймов ртутного столба</translation>
    </message>
    <message>
        <source>inches of mercury</source>
        <comment>one</comment>
        <extracomment>The form for 1, 21, 31.</extracomment>
        <translation>дюйм ртутного столба</translation>
    </message>
    <message>
        <source>inches of mercury</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>дюйма ртутного столба</translation>
    </message>
    <message>
        <source>inches of mercury</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>дюйма ртутного столба</translation>
    </message>
    <message>
        <source>millimetres</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>миллиметров</translation>
    </message>
    <message>
        <source>millimetres</source>
        <comment>one</comment>
        <extracomment>The form for 1, 21, 31.</extracomment>
        <translation>миллиметр</translation>
    </message>
    <message>
        <source>millimetres</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>миллиметра</translation>
    </message>
    <message>
        <source>millimetres</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>миллиметра</translation>
    </message>
    <message>
        <source>inches</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>дюймов</translation>
    </message>
    <message>
        <source>inches</source>
        <comment>one</comment>
        <extracomment>The form for 1, 21, 31.</extracomment>
        <translation>дюйм</translation>
    </message>
    <message>
        <source>inches</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>дюйма</translation>
    </message>
    <message>
        <source>inches</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>дюйма</translation>
    </message>
    <message>
        <source>metres</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>метров</translation>
    </message>
    <message>
        <source>feet</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>футов</translation>
    </message>
    <message>
        <source>N</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>С</translation>
    </message>
    <message>
        <source>NNE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>ССВ</translation>
    </message>
    <message>
        <source>NE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>СВ</translation>
    </message>
    <message>
        <source>ENE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>ВСВ</translation>
    </message>
    <message>
        <source>E</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>В</translation>
    </message>
    <message>
        <source>ESE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>ВЮВ</translation>
    </message>
    <message>
        <source>SE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>ЮВ</translation>
    </message>
    <message>
        <source>SSE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>ЮЮВ</translation>
    </message>
    <message>
        <source>S</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>Ю</translation>
    </message>
    <message>
        <source>SSW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>ЮЮЗ</translation>
    </message>
    <message>
        <source>SW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>ЮЗ</translation>
    </message>
    <message>
        <source>WSW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>ЗЮЗ</translation>
    </message>
    <message>
        <source>W</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>З</translation>
    </message>
    <message>
        <source>WNW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>ЗСЗ</translation>
    </message>
    <message>
        <source>NW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>СЗ</translation>
    </message>
    <message>
        <source>NNW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>ССЗ</translation>
    </message>
    <message>
        <source>Rot.</source>
        <extracomment>Stands in the place of a wind direction: the wind is variable. Short.</extracomment>
        <translation>перем.</translation>
    </message>
    <message>
        <source>-</source>
        <extracomment>Stands in the place of a wind direction: calm or unknown.</extracomment>
        <translation>-</translation>
    </message>
    <message>
        <source>Low</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Низкий</translation>
    </message>
    <message>
        <source>Medium</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Умеренный</translation>
    </message>
    <message>
        <source>High</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Высокий</translation>
    </message>
    <message>
        <source>Very high</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Очень высокий</translation>
    </message>
    <message>
        <source>Extreme</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Экстремальный</translation>
    </message>
    <message>
        <source>h</source>
        <extracomment>Hour unit, written directly behind a number: &quot;12h&quot;.</extracomment>
        <translation>ч</translation>
    </message>
    <message>
        <source>Gusts</source>
        <extracomment>Caption of the speed of gusts. Little room.</extracomment>
        <translation>Порывы</translation>
    </message>
    <message>
        <source>Wind:%d degrees %@</source>
        <extracomment>Spoken by screen readers. %d is the direction in degrees, %@ the speed with its unit. Keep this order.</extracomment>
        <translation>Ветер: %d градусов, %@</translation>
    </message>
    <message>
        <source>Wind:%d degrees %@</source>
        <comment>one</comment>
        <extracomment>The form for 1, 21, 31.</extracomment>
        <translation>Ветер: %d градус, %@</translation>
    </message>
    <message>
        <source>Wind:%d degrees %@</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>Ветер: %d градуса, %@</translation>
    </message>
    <message>
        <source>Wind:%d degrees %@</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>Ветер: %d градуса, %@</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The tray icon's menu: ends the program.</extracomment>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>Show more...</source>
        <extracomment>Button below the rows.</extracomment>
        <translation>Показать ещё...</translation>
    </message>
    <message>
        <source>Show less...</source>
        <extracomment>Button below the rows.</extracomment>
        <translation>Свернуть...</translation>
    </message>
    <message>
        <source>Demonstration weather</source>
        <extracomment>Below the panel, in the window&apos;s title and in printed reports: the weather is made up. Room for 30 letters.</extracomment>
        <translation>Демонстрационная погода</translation>
    </message>
    <message>
        <source>Wind</source>
        <extracomment>In front of the values, in the report that is printed for people.</extracomment>
        <translation>Ветер</translation>
    </message>
    <message>
        <source>Precipitation</source>
        <extracomment>In front of the values, in the report that is printed for people.</extracomment>
        <translation>Осадки</translation>
    </message>
    <message>
        <source>Pressure</source>
        <extracomment>In front of the values, in the report that is printed for people.</extracomment>
        <translation>Давление</translation>
    </message>
    <message>
        <source>Please open Zephyrix to activate the widget.</source>
        <extracomment>Shown in place of the weather until a place has been chosen. Zephyrix is the name of the main application.</extracomment>
        <translation>Откройте Zephyrix, чтобы активировать виджет.</translation>
    </message>
    <message>
        <source>north</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>северный</translation>
    </message>
    <message>
        <source>north-north-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>северо-северо-восточный</translation>
    </message>
    <message>
        <source>north-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>северо-восточный</translation>
    </message>
    <message>
        <source>east-north-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>востоко-северо-восточный</translation>
    </message>
    <message>
        <source>east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>восточный</translation>
    </message>
    <message>
        <source>east-south-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>востоко-юго-восточный</translation>
    </message>
    <message>
        <source>south-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>юго-восточный</translation>
    </message>
    <message>
        <source>south-south-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>юго-юго-восточный</translation>
    </message>
    <message>
        <source>south</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>южный</translation>
    </message>
    <message>
        <source>south-south-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>юго-юго-западный</translation>
    </message>
    <message>
        <source>south-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>юго-западный</translation>
    </message>
    <message>
        <source>west-south-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>западо-юго-западный</translation>
    </message>
    <message>
        <source>west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>западный</translation>
    </message>
    <message>
        <source>west-north-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>западо-северо-западный</translation>
    </message>
    <message>
        <source>north-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>северо-западный</translation>
    </message>
    <message>
        <source>north-north-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>северо-северо-западный</translation>
    </message>
    <message>
        <source>from changing directions</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>переменных направлений</translation>
    </message>
    <message>
        <source>wind %1 %2 %3</source>
        <extracomment>Spoken by screen readers. %1 is the direction in words or empty, %2 the speed, %3 its unit.</extracomment>
        <translation>ветер %1 %2 %3</translation>
    </message>
    <message>
        <source>no wind</source>
        <extracomment>Spoken by screen readers.</extracomment>
        <translation>штиль</translation>
    </message>
    <message>
        <source>precipitation %1 %2</source>
        <extracomment>Spoken by screen readers. %1 is the amount, %2 its unit.</extracomment>
        <translation>осадки %1 %2</translation>
    </message>
    <message>
        <source>in the last hour</source>
        <extracomment>Spoken by screen readers. Behind the amount of precipitation.</extracomment>
        <translation>за последний час</translation>
    </message>
    <message>
        <source>in the last %1 hours</source>
        <extracomment>Spoken by screen readers. Behind the amount of precipitation; %1 is more than one.</extracomment>
        <translation>за последние %1 часов</translation>
    </message>
    <message>
        <source>in the last %1 hours</source>
        <comment>one</comment>
        <extracomment>The form for 1, 21, 31.</extracomment>
        <translation>за последний %1 час</translation>
    </message>
    <message>
        <source>in the last %1 hours</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>за последние %1 часа</translation>
    </message>
    <message>
        <source>in the last %1 hours</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>за последние %1 часа</translation>
    </message>
    <message>
        <source>pressure %1 %2</source>
        <extracomment>Spoken by screen readers. %1 is the air pressure, %2 its unit.</extracomment>
        <translation>давление %1 %2</translation>
    </message>
    <message>
        <source>observed at %1</source>
        <extracomment>Spoken by screen readers. %1 is a clock time.</extracomment>
        <translation>наблюдение в %1</translation>
    </message>
    <message>
        <source>forecast for %1</source>
        <extracomment>Spoken by screen readers. %1 is a place.</extracomment>
        <translation>прогноз: %1</translation>
    </message>
    <message>
        <source>no weather yet</source>
        <extracomment>Spoken by screen readers, behind a place: nothing was fetched for it so far.</extracomment>
        <translation>данных о погоде пока нет</translation>
    </message>
    <message>
        <source>high %1</source>
        <extracomment>Spoken by screen readers. Highest temperature of a day; %1 has number and unit.</extracomment>
        <translation>максимум %1</translation>
    </message>
    <message>
        <source>low %1</source>
        <extracomment>Spoken by screen readers. Lowest temperature of a day; %1 has number and unit.</extracomment>
        <translation>минимум %1</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <extracomment>Behind the time of an observation that is old; %1 is a number of hours, 2 or more. Little room: hours as a short unit.</extracomment>
        <translation>%1 ч назад</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>The place whose weather is shown, in front of its name.</extracomment>
        <translation>Место</translation>
    </message>
    <message>
        <source>Temperature</source>
        <extracomment>In front of the units to choose from.</extracomment>
        <translation>Температура</translation>
    </message>
    <message>
        <source>Search for a place</source>
        <extracomment>In the window of the main application. In the empty field in which a place&apos;s name is typed.</extracomment>
        <translation>Поиск места</translation>
    </message>
    <message>
        <source>Places found</source>
        <extracomment>In the window of the main application. Spoken: the list below the search field.</extracomment>
        <translation>Найденные места</translation>
    </message>
    <message>
        <source>No place of this name</source>
        <extracomment>In the window of the main application. In the list below the search field.</extracomment>
        <translation>Места с таким названием нет</translation>
    </message>
    <message>
        <source>No place is chosen</source>
        <extracomment>In the window of the main application. In place of the chosen place&apos;s name.</extracomment>
        <translation>Место не выбрано</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <extracomment>In the window of the main application. Caption in front of latitude and longitude.</extracomment>
        <translation>Координаты</translation>
    </message>
    <message>
        <source>Local time</source>
        <extracomment>In the window of the main application. Caption in front of the clock time at the place.</extracomment>
        <translation>Местное время</translation>
    </message>
    <message>
        <source>Sun</source>
        <extracomment>In the window of the main application. Caption in front of the times of sunrise and sunset.</extracomment>
        <translation>Солнце</translation>
    </message>
    <message>
        <source>Moon</source>
        <extracomment>In the window of the main application. Caption in front of the moon&apos;s phase.</extracomment>
        <translation>Луна</translation>
    </message>
    <message>
        <source>rises %1</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;; %1 is a clock time.</extracomment>
        <translation>восход %1</translation>
    </message>
    <message>
        <source>sets %1</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;; %1 is a clock time.</extracomment>
        <translation>заход %1</translation>
    </message>
    <message>
        <source>does not set (polar day)</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;.</extracomment>
        <translation>не заходит (полярный день)</translation>
    </message>
    <message>
        <source>does not rise (polar night)</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;.</extracomment>
        <translation>не восходит (полярная ночь)</translation>
    </message>
    <message>
        <source>new moon</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>новолуние</translation>
    </message>
    <message>
        <source>waxing crescent</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>растущий серп</translation>
    </message>
    <message>
        <source>first quarter</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>первая четверть</translation>
    </message>
    <message>
        <source>waxing gibbous</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>растущая луна</translation>
    </message>
    <message>
        <source>full moon</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>полнолуние</translation>
    </message>
    <message>
        <source>waning gibbous</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>убывающая луна</translation>
    </message>
    <message>
        <source>last quarter</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>последняя четверть</translation>
    </message>
    <message>
        <source>waning crescent</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>убывающий серп</translation>
    </message>
    <message>
        <source>Units</source>
        <extracomment>In the window of the main application. Heading above the units to choose from.</extracomment>
        <translation>Единицы</translation>
    </message>
    <message>
        <source>Symbols</source>
        <extracomment>In the window of the main application. Heading above the sets of weather symbols.</extracomment>
        <translation>Значки</translation>
    </message>
    <message>
        <source>Weather</source>
        <extracomment>In the window of the main application. Heading above the state of the weather data.</extracomment>
        <translation>Погода</translation>
    </message>
    <message>
        <source>Colour</source>
        <extracomment>In the window of the main application. A set of weather symbols: in full colour.</extracomment>
        <translation>Цветные</translation>
    </message>
    <message>
        <source>Lines</source>
        <extracomment>In the window of the main application. A set of weather symbols: line drawings.</extracomment>
        <translation>Контурные</translation>
    </message>
    <message>
        <source>Usual in %1: %2</source>
        <extracomment>In the window of the main application. A button that chooses these units. %1 is a country, %2 are units. The sentence must bear any country&apos;s name.</extracomment>
        <translation>Обычные (%1): %2</translation>
    </message>
    <message>
        <source>Usual units: %1</source>
        <extracomment>In the window of the main application. A button that chooses these units.</extracomment>
        <translation>Обычные единицы: %1</translation>
    </message>
    <message>
        <source>Show the panel at login</source>
        <extracomment>In the window of the main application. A box to tick.</extracomment>
        <translation>Показывать панель при входе</translation>
    </message>
    <message>
        <source>No weather of this place yet: open the panel.</source>
        <extracomment>In the window of the main application. The state of the weather data.</extracomment>
        <translation>Погоды этого места ещё нет: откройте панель.</translation>
    </message>
    <message>
        <source>Updated %1.</source>
        <extracomment>In the window of the main application. The state of the weather data; %1 is &quot;just now&quot;, &quot;5 min ago&quot; or the like.</extracomment>
        <translation>Обновлено %1.</translation>
    </message>
    <message>
        <source>just now</source>
        <extracomment>In the window of the main application. In place of %1 of &quot;Updated %1.&quot;</extracomment>
        <translation>только что</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <extracomment>In the window of the main application. In place of %1 of &quot;Updated %1.&quot;; a number of minutes, 2 or more.</extracomment>
        <translation>%1 мин назад</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <extracomment>In the window of the main application. In place of %1 of &quot;Updated %1.&quot;; a number of days, 2 or more.</extracomment>
        <translation>%1 дн. назад</translation>
    </message>
    <message>
        <source>The panel was closed since, or the feed could not be reached.</source>
        <extracomment>In the window of the main application. Behind &quot;Updated 3 h ago.&quot;: why the data is old.</extracomment>
        <translation>С тех пор панель была закрыта или сервис недоступен.</translation>
    </message>
    <message>
        <source>Places: %1</source>
        <extracomment>In the window of the main application. Who made the list of places; %1 is a name and a licence.</extracomment>
        <translation>Места: %1</translation>
    </message>
</context>
</TS>
