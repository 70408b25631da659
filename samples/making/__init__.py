"""What the larger applications of the sample cluster are made of."""
