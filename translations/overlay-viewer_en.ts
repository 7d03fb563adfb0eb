<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>viewer::SceneDocument</name>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>... and %n more</numerusform>
            <numerusform>... and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>viewer::SearchGuide</name>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>%n found</numerusform>
            <numerusform>%n found</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected, but hidden by the search</source>
        <translation>
            <numerusform>%n selected, but hidden by the search</numerusform>
            <numerusform>%n selected, but hidden by the search</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed since the search</source>
        <translation>
            <numerusform>%n changed since the search</numerusform>
            <numerusform>%n changed since the search</numerusform>
        </translation>
    </message>
</context>
</TS>
