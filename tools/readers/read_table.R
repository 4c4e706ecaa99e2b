# read_table.R TABLE CELLS: reads a table of `quilltags export --to csv` and writes its cells, a row a
# line, each cell as the code points of its characters.
paths <- commandArgs(trailingOnly = TRUE)
table <- read.csv(paths[1], colClasses = "character", na.strings = character(), encoding = "UTF-8")
cells <- file(paths[2], open = "w")
for (row in seq_len(nrow(table))) {
  points <- vapply(table[row, ], function(cell) paste(utf8ToInt(cell), collapse = " "), "")
  writeLines(paste(points, collapse = "\t"), cells)
}
close(cells)
