int lomaterra_ventanas_vacía = 0;
