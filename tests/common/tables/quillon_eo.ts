<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="eo" sourcelanguage="en">
<!-- A table that somebody has only begun to translate. -->
<context>
    <name></name>
    <message id="todayTitle">
        <source></source>
        <translation>Hodiaŭ</translation>
    </message>
</context>
</TS>
