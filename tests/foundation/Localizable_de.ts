<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Localizable</name>
    <message>
        <source>Wind gusts (test)</source>
        <translation>Windböen (Prüfung)</translation>
    </message>
</context>
</TS>
