import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

Rectangle {
    color: Tokens.bg
    Column {
        x: 24; y: 24; spacing: 16
        Row {
            spacing: 8
            Button { kind: Button.Main; text: "Continue" }
            Button { kind: Button.Main; text: "Disabled"; enabled: false }
            Button { text: "Secondary" }
            Button { kind: Button.Quiet; text: "Quiet" }
            Button { kind: Button.Danger; text: "Discard" }
            Button { kind: Button.DangerFilled; text: "Discard the text" }
            Button { kind: Button.Main; busy: true; text: "Signing in" }
            Button { text: "Refine"; iconName: "refine"; size: Button.Small }
            Button { text: "Focus"; FocusRing {} }
            TextLink { text: "Show message" }
        }
        Row {
            spacing: 12
            IconButton { iconName: "rail"; text: "Rail" }
            IconButton { iconName: "history"; text: "History"; active: true }
            IconButton { iconName: "dock"; text: "Dock"; badge: 2 }
            IconButton { iconName: "dock"; text: "Dock"; badge: 12 }
            Mark { size: 18 } Mark { size: 20 } Mark { size: 24 } Mark { size: 28 } Mark { size: 44 } Mark { size: 56 }
            Tile { letter: "N" } Tile { letter: "O"; fill: "#f59e0b" } Tile { letter: "S"; fill: "#0ea5e9"; size: 28 }
            Disc { letters: "S"; size: 22 } Disc { letters: "Lo"; base: "#7c5cff"; size: 28 } Disc { letters: "An"; base: "#f59e0b"; size: 36 }
            Disc { letters: "Le"; base: "#e0484a"; size: 28 } Disc { letters: "Gr"; base: "#0f9f7a"; size: 28 } Disc { letters: "Sk"; base: "#0ea5e9"; size: 28 }
            Avatar { initials: "OL" } Avatar { initials: "OL"; size: 40 }
        }
        Row {
            spacing: 8
            Chip { text: "+6.2%"; iconName: "arrup"; tone: Chip.Good }
            Chip { text: "+3"; iconName: "arrup"; tone: Chip.Bad }
            Chip { text: "Ending soon"; tone: Chip.Warning }
            Chip { text: "Doing"; tone: Chip.Running }
            Chip { text: "Sample"; tone: Chip.Accent }
            Chip { text: "To do" }
            ReplyChip { text: "Run the fix" }
            ReplyChip { text: "As a table"; FocusRing { targetRadius: 16 } }
        }
        Row {
            spacing: 16
            TextField { width: 300; placeholderText: "Agent name" }
            TextField { width: 300; text: "Tin Compass"; failed: true }
            Field { width: 300; label: "Email"; field.text: "lead@night-ferry.example" }
        }
        Row {
            spacing: 40
            Rectangle { width: 260; height: 160; color: "transparent"
                Shadow {} Rectangle { anchors.fill: parent; radius: 14; color: Tokens.raised; border.color: Tokens.line2
                Column { x: 6; y: 6; width: 248
                    MenuRow { width: 248; iconName: "download"; text: "Picture (PNG)"; hint: "Ctrl E" }
                    MenuRow { width: 248; iconName: "sheet"; text: "Table (CSV)" }
                    MenuRow { width: 248; iconName: "out"; text: "Sign out"; destructive: true }
                } } }
            Rectangle { width: 260; height: 160; color: "transparent"
                Shadow { level: Shadow.High; targetRadius: 20 } Rectangle { anchors.fill: parent; radius: 20; color: Tokens.surface } }
            Column { spacing: 8
                Skeleton { width: 200; height: 18 } Skeleton { width: 140 } Skeleton { width: 170 } }
        }
        Grid { columns: 24; spacing: 8
            Repeater { model: ["agents","alert","arrdn","arrup","bang","bell","brief","budget","cashflow","check","clip","close","compare","copy","costs","decision","dock","down","download","events","eye","funnel","globe","history","image","mic","moon","more","okr","out","phone","plus","rail","refine","report","retro","right","search","send","sheet","status","stop","unit","user","workload"]
                Icon { required property string modelData; name: modelData; color: Tokens.t2 } }
            Repeater { model: ["report","compare","check","down","right","plus","dock","stop","refine"]
                Icon { required property string modelData; name: modelData; size: 16; color: Tokens.accentText } }
        }
        Column {
            Label { style: Tokens.type.title; text: "Portfolio report, week 47" }
            Label { style: Tokens.type.line; color: Tokens.t2; text: "Five projects, 16–22 November" }
            Label { style: Tokens.type.figure; text: "€418,200" }
            Label { width: 300; wrapMode: Text.Wrap; text: "A good week with two open spots: Orchard is blocked by a missing tax field. Ни одна цифра не выдумана" }
        }
    }
}
