runtime! ftplugin/lytdlg.lua
setlocal commentstring=#\ %s
