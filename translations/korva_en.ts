<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>pad::Documents</name>
    <message numerus="yes">
        <source>%Ln colors</source>
        <comment>canvas type</comment>
        <translation>
            <numerusform>%Ln color</numerusform>
            <numerusform>%Ln colors</numerusform>
        </translation>
    </message>
</context>
</TS>
