runtime! ftplugin/lytdlg.lua
