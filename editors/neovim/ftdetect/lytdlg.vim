" Descriptions and language files are in the ANSI code page, whatever the user's own encoding is.
augroup lytdlg
  autocmd!
  autocmd BufReadPre *.dlg,*.nls let g:lytdlg_encodings = &fileencodings | set fileencodings=cp1252
  autocmd BufReadPost *.dlg,*.nls let &fileencodings = g:lytdlg_encodings
  autocmd BufNewFile *.dlg,*.nls setlocal fileencoding=cp1252
  autocmd BufRead,BufNewFile *.dlg setfiletype lytdlg
  autocmd BufRead,BufNewFile *.nls setfiletype lytnls
  autocmd BufRead,BufNewFile *.case setfiletype lytcase
augroup END
