<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>ColourButtons</name>
    <message>
        <location filename="../src/ui/widgets/ColourButtons.cpp" line="20"/>
        <location filename="../src/ui/widgets/ColourButtons.cpp" line="24"/>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/widgets/ColourButtons.cpp" line="20"/>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/widgets/ColourButtons.cpp" line="21"/>
        <source>Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/widgets/ColourButtons.cpp" line="21"/>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/widgets/ColourButtons.cpp" line="22"/>
        <source>Cyan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/widgets/ColourButtons.cpp" line="22"/>
        <source>Magenta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/widgets/ColourButtons.cpp" line="23"/>
        <source>White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/widgets/ColourButtons.cpp" line="23"/>
        <source>Black</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LineLimit</name>
    <message>
        <location filename="../src/ui/common/LineLimit.cpp" line="12"/>
        <source>An animation holds at most 32767 lines. The lines up to that limit are kept; the rest could not be added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/common/LineLimit.cpp" line="15"/>
        <source>Line limit reached</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flickerscribe::ui::AboutDialog</name>
    <message>
        <location filename="../src/ui/dialogs/AboutDialog.cpp" line="67"/>
        <source>About %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/AboutDialog.cpp" line="88"/>
        <source>%1 website @ %2
[QZT] Website @ %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/AboutDialog.cpp" line="95"/>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flickerscribe::ui::ColourNameEditor</name>
    <message>
        <location filename="../src/ui/dialogs/ColourNameEditor.cpp" line="39"/>
        <source>Color name editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/ColourNameEditor.cpp" line="52"/>
        <source>Color your text here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/ColourNameEditor.cpp" line="61"/>
        <source>Copy to clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/ColourNameEditor.cpp" line="66"/>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flickerscribe::ui::EditTimeDialog</name>
    <message>
        <location filename="../src/ui/dialogs/EditTimeDialog.cpp" line="65"/>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/EditTimeDialog.cpp" line="66"/>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/EditTimeDialog.cpp" line="71"/>
        <source>15 = fast
20 = regular
30 = slow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/EditTimeDialog.cpp" line="73"/>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/EditTimeDialog.cpp" line="78"/>
        <source>Under construction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/EditTimeDialog.cpp" line="83"/>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/EditTimeDialog.cpp" line="87"/>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flickerscribe::ui::HelpDialog</name>
    <message>
        <location filename="../src/ui/dialogs/HelpDialog.cpp" line="56"/>
        <source>Help!!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/HelpDialog.cpp" line="92"/>
        <source>Help + FAQ + Tutorial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/HelpDialog.cpp" line="94"/>
        <source>Copy the web site address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/HelpDialog.cpp" line="95"/>
        <source>Forums</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/HelpDialog.cpp" line="97"/>
        <source>Copy the forums address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/HelpDialog.cpp" line="99"/>
        <source>Contact me</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/HelpDialog.cpp" line="101"/>
        <source>Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/HelpDialog.cpp" line="103"/>
        <source>Copy the e-mail address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/HelpDialog.cpp" line="105"/>
        <source>ICQ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/HelpDialog.cpp" line="107"/>
        <source>Copy the chat number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/HelpDialog.cpp" line="109"/>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flickerscribe::ui::MainWindow</name>
    <message>
        <location filename="../src/ui/main/MainWindow.cpp" line="76"/>
        <source>Flickerscribe - by [QZT]Quillon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow.cpp" line="190"/>
        <source>Edit text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow.cpp" line="267"/>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="46"/>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="129"/>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="44"/>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="48"/>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="130"/>
        <location filename="../src/ui/main/MainWindow_Files.cpp" line="31"/>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="50"/>
        <location filename="../src/ui/main/MainWindow_Files.cpp" line="67"/>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="52"/>
        <location filename="../src/ui/main/MainWindow_History.cpp" line="92"/>
        <source>Reopen last animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="54"/>
        <source>Kept animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="59"/>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="131"/>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="60"/>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="62"/>
        <source>Export animated picture...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="66"/>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="68"/>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="137"/>
        <location filename="../src/ui/main/MainWindow_Editing.cpp" line="93"/>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="71"/>
        <location filename="../src/ui/main/MainWindow_History.cpp" line="37"/>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="78"/>
        <location filename="../src/ui/main/MainWindow_History.cpp" line="39"/>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="81"/>
        <location filename="../src/ui/main/MainWindow_Clipboard.cpp" line="32"/>
        <source>Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="84"/>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="87"/>
        <location filename="../src/ui/main/MainWindow_Clipboard.cpp" line="48"/>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="91"/>
        <source>Show colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="94"/>
        <source>Color name editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="96"/>
        <source>Simple Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="99"/>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="102"/>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="104"/>
        <source>Help!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="107"/>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="112"/>
        <source>Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="129"/>
        <source>New Animation Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="130"/>
        <source>Open Animation Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="131"/>
        <source>Save Animation Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="134"/>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="134"/>
        <location filename="../src/ui/main/MainWindow_LineCommands.cpp" line="23"/>
        <location filename="../src/ui/main/MainWindow_LineCommands.cpp" line="35"/>
        <source>Add line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="135"/>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="135"/>
        <source>Remove Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="137"/>
        <source>Edit Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="139"/>
        <source>Wizard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="139"/>
        <source>Animation Script Wizard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="141"/>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="202"/>
        <location filename="../src/ui/main/MainWindow_Playback.cpp" line="43"/>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="141"/>
        <source>Preview animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="143"/>
        <source>Generate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="143"/>
        <source>Generate Brennock Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="162"/>
        <source>Before selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="163"/>
        <source>After selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="165"/>
        <source>Copy selected line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="166"/>
        <location filename="../src/ui/main/MainWindow_LineCommands.cpp" line="46"/>
        <source>Copy selected line x times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="169"/>
        <source>Copy all lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="170"/>
        <source>Copy all lines (reverse)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Actions.cpp" line="200"/>
        <location filename="../src/ui/main/MainWindow_Playback.cpp" line="34"/>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Editing.cpp" line="21"/>
        <source>Typing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Editing.cpp" line="69"/>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Editing.cpp" line="91"/>
        <source>Edit time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Editing.cpp" line="93"/>
        <source>No items to edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Files.cpp" line="17"/>
        <source>Brennock Animation Script (*.fsq)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Files.cpp" line="23"/>
        <source>Open Brennock Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Files.cpp" line="31"/>
        <location filename="../src/ui/main/MainWindow_History.cpp" line="101"/>
        <source>File not found!
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Files.cpp" line="31"/>
        <location filename="../src/ui/main/MainWindow_History.cpp" line="97"/>
        <location filename="../src/ui/main/MainWindow_History.cpp" line="102"/>
        <location filename="../src/ui/main/MainWindow_LineCommands.cpp" line="51"/>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Files.cpp" line="49"/>
        <location filename="../src/ui/main/MainWindow_Files.cpp" line="54"/>
        <source>Save Brennock Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Files.cpp" line="54"/>
        <location filename="../src/ui/main/MainWindow_Picture.cpp" line="32"/>
        <source>File exists! Overwrite?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Files.cpp" line="60"/>
        <source>Note: Currently only .cfg files can be imported!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Files.cpp" line="60"/>
        <source>Import note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Files.cpp" line="63"/>
        <source>Import file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Files.cpp" line="64"/>
        <source>Brennock Scripts (*.cfg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Files.cpp" line="67"/>
        <location filename="../src/ui/main/MainWindow_History.cpp" line="97"/>
        <source>File not found!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Files.cpp" line="67"/>
        <source>Import error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_History.cpp" line="55"/>
        <source>None can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_History.cpp" line="82"/>
        <source>Your work could not be kept (%1); trying again in 30 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_History.cpp" line="101"/>
        <source>Open kept animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_LineCommands.cpp" line="28"/>
        <source>Remove line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_LineCommands.cpp" line="29"/>
        <source>Can&apos;t remove line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_LineCommands.cpp" line="35"/>
        <source>There are no lines to copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_LineCommands.cpp" line="45"/>
        <source>Copy the selected line how many times?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_LineCommands.cpp" line="50"/>
        <source>Can&apos;t copy the selected line. Invalid input (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_LineCommands.cpp" line="78"/>
        <source>Copy lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Picture.cpp" line="19"/>
        <source>Export animated picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Picture.cpp" line="21"/>
        <source>There is no animation to export!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Picture.cpp" line="28"/>
        <source>Animated picture (*.gif)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Picture.cpp" line="44"/>
        <source>Drawing the frames...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Picture.cpp" line="44"/>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Playback.cpp" line="30"/>
        <source>There is no animation to play!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/main/MainWindow_Playback.cpp" line="30"/>
        <source>Preview Animation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flickerscribe::ui::OptionsDialog</name>
    <message>
        <location filename="../src/ui/dialogs/OptionsDialog.cpp" line="83"/>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/OptionsDialog.cpp" line="88"/>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/OptionsDialog.cpp" line="90"/>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/OptionsDialog.cpp" line="95"/>
        <source>Selected item edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/OptionsDialog.cpp" line="96"/>
        <source>Edit item by clicking on the selected item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/OptionsDialog.cpp" line="116"/>
        <source>Default Open directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/OptionsDialog.cpp" line="117"/>
        <source>Browse for the default Open directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/OptionsDialog.cpp" line="118"/>
        <source>Select default &apos;Open script&apos; directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/OptionsDialog.cpp" line="120"/>
        <source>Default Save directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/OptionsDialog.cpp" line="121"/>
        <source>Browse for the default Save directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/OptionsDialog.cpp" line="122"/>
        <source>Select default &apos;Save script&apos; directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/OptionsDialog.cpp" line="129"/>
        <source>Clantag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/OptionsDialog.cpp" line="130"/>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/OptionsDialog.cpp" line="136"/>
        <source>Reverse clantag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/OptionsDialog.cpp" line="144"/>
        <source>Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/OptionsDialog.cpp" line="145"/>
        <source>Wizard Defaults</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flickerscribe::ui::ScriptModel</name>
    <message>
        <location filename="../src/ui/widgets/ScriptModel.cpp" line="50"/>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/widgets/ScriptModel.cpp" line="52"/>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/widgets/ScriptModel.cpp" line="54"/>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flickerscribe::ui::ScriptWindow</name>
    <message>
        <location filename="../src/ui/dialogs/ScriptWindow.cpp" line="49"/>
        <source>Generate Brennock Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/ScriptWindow.cpp" line="56"/>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/ScriptWindow.cpp" line="76"/>
        <source>Save Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/ScriptWindow.cpp" line="77"/>
        <source>Brennock Script (*.cfg);;All Files(*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/ScriptWindow.cpp" line="112"/>
        <source>File Exists! Overwrite?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/ScriptWindow.cpp" line="112"/>
        <source>Save script</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flickerscribe::ui::SimpleEditWindow</name>
    <message>
        <location filename="../src/ui/dialogs/SimpleEditWindow.cpp" line="42"/>
        <location filename="../src/ui/dialogs/SimpleEditWindow.cpp" line="89"/>
        <source>Simple edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/SimpleEditWindow.cpp" line="51"/>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/SimpleEditWindow.cpp" line="51"/>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flickerscribe::ui::WizardDialog</name>
    <message>
        <location filename="../src/ui/wizard/WizardDialog.cpp" line="46"/>
        <location filename="../src/ui/wizard/WizardDialog.cpp" line="125"/>
        <source>Animation Script Wizard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog.cpp" line="68"/>
        <source>&lt; Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog.cpp" line="69"/>
        <source>Next &gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog.cpp" line="70"/>
        <source>Finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog.cpp" line="71"/>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog.cpp" line="94"/>
        <source>Are you sure you want to exit the wizard?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog.cpp" line="94"/>
        <source>Exit wizard?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog.cpp" line="117"/>
        <source>Wizard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog.cpp" line="123"/>
        <source>A name or a clan tag can hold at most %1 characters. The animation was left as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog.cpp" line="148"/>
        <source>Preview not available yet!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog.cpp" line="148"/>
        <source>Effect - Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog.cpp" line="163"/>
        <source>Repeat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog.cpp" line="163"/>
        <location filename="../src/ui/wizard/WizardDialog.cpp" line="164"/>
        <source>No options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="81"/>
        <source>Welcome to the Animation Script Wizard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="86"/>
        <source>With this wizard, you can create cool animation effects in just a few minutes.

Click Next to continue or Cancel to exit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="102"/>
        <source>Select wizard type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="102"/>
        <source>Select the wizard style (simple/advanced)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="103"/>
        <source>Animation wizard style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="104"/>
        <source>Simple</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="105"/>
        <source>Advanced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="119"/>
        <source>Type: Simple - Set name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="119"/>
        <source>Fill in your Clantag and name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="120"/>
        <source>Your name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="122"/>
        <source>Name Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="124"/>
        <source>Clantag and Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="128"/>
        <source>Reverse clantag-name (e.g. [QZT]Quillon -&gt; Quillon[QZT]   )</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="130"/>
        <source>Color editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="158"/>
        <source>Type: Simple - Select effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="158"/>
        <source>Select the animation effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="160"/>
        <source>Effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="163"/>
        <source>Wave 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="164"/>
        <source>Bounce</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="167"/>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="169"/>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="172"/>
        <source>Effect list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="174"/>
        <source>Effect name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="174"/>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="188"/>
        <source>Parameter 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="174"/>
        <location filename="../src/ui/wizard/WizardDialog_Pages.cpp" line="190"/>
        <source>Parameter 2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
