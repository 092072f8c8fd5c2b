<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>DocumentRow</name>
    <message numerus="yes">
        <source>%Ln character(s)</source>
        <translation>
            <numerusform>%Ln character</numerusform>
            <numerusform>%Ln characters</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>JumpButton</name>
    <message numerus="yes">
        <source>Jump to latest, %n new</source>
        <translation>
            <numerusform>Jump to latest, %n new</numerusform>
            <numerusform>Jump to latest, %n new</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kiv::store::CreateRoom</name>
    <message numerus="yes">
        <source>%Ln character(s) too many</source>
        <translation>
            <numerusform>%Ln character too many</numerusform>
            <numerusform>%Ln characters too many</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kiv::store::ScopeRoom</name>
    <message numerus="yes">
        <source>%Ln project(s)</source>
        <translation>
            <numerusform>%Ln project</numerusform>
            <numerusform>%Ln projects</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln agent(s)</source>
        <translation>
            <numerusform>%Ln agent</numerusform>
            <numerusform>%Ln agents</numerusform>
        </translation>
    </message>
</context>
</TS>
